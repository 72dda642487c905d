// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/UpdatePrompt.h"

#include <QMessageBox>

#include <memory>

namespace dropshade {

/// Shows updates in plain dialogs, one at a time. None of them holds anything else up.
class UpdateDialogs : public QObject, public UpdatePrompt {
    Q_OBJECT

public:
    UpdateDialogs();
    ~UpdateDialogs() override;

    void offer(const UpdateItem& item, const VersionNumber& current,
               std::function<void(Answer)> answer) override;
    void raiseOffer() override;
    void tellUpToDate(const VersionNumber& current) override;
    void tellFailure(UpdateFailure failure) override;
    void openPage(const QUrl& page) override;

private:
    [[nodiscard]] QMessageBox& makeDialog(QMessageBox::Icon icon, const QString& headline,
                                          const QString& text);
    void tell(QMessageBox::Icon icon, const QString& headline, const QString& text);

    void discard();

    std::unique_ptr<QMessageBox> m_dialog;
};

} // namespace dropshade
