// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/CloudSyncStatusLabel.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"

#include <QHBoxLayout>

namespace dropshade {

CloudSyncStatusLabel::CloudSyncStatusLabel(const Look& look, QWidget* parent)
    : QWidget(parent), m_look(look), m_sign(new QLabel(this)),
      m_words(new Label(look, TextStyle::Caption, Label::Tone::Secondary, QString(), this)) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, metrics::space4, 0, 0);
    line->setSpacing(metrics::space8);
    line->addWidget(m_sign, 0, Qt::AlignTop);
    line->addWidget(m_words, 1);
    m_words->setWordWrap(true);
    connect(&look, &Look::didChange, this, &CloudSyncStatusLabel::paintSign);
    setStatus({});
}

void CloudSyncStatusLabel::setStatus(const SyncStatusLabel& status) {
    m_status = status;
    m_words->setWords(status.words);
    m_words->setTone(status.sign == SyncStatusLabel::Sign::Warning ? Label::Tone::Warning
                     : status.sign == SyncStatusLabel::Sign::Error ? Label::Tone::Danger
                                                                   : Label::Tone::Secondary);
    paintSign();
    setVisible(!status.words.isEmpty());
}

void CloudSyncStatusLabel::paintSign() {
    const Theme& theme = m_look.theme();
    m_sign->setVisible(m_status.sign != SyncStatusLabel::Sign::None);
    if (m_status.sign == SyncStatusLabel::Sign::Warning)
        m_sign->setPixmap(
            iconPixmap(Icon::SizeWarning, theme.stateWarning, metrics::icon, devicePixelRatioF()));
    if (m_status.sign == SyncStatusLabel::Sign::Error)
        m_sign->setPixmap(
            iconPixmap(Icon::SyncError, theme.dangerBase, metrics::icon, devicePixelRatioF()));
}

} // namespace dropshade
