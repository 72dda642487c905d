// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastActionMenu.h"

#include "color/ColorParser.h"
#include "widgets/Announcer.h"
#include "widgets/Menu.h"
#include "widgets/Metrics.h"

#include <optional>
#include <utility>

namespace dropshade {

namespace {

QString english(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::optional<SRGBColor> colorOn(const Pasteboard& pasteboard) {
    return parseColor(pasteboard.text().toStdString());
}

} // namespace

ContrastActionMenu::ContrastActionMenu(const ColorWindowSurroundings& surroundings,
                                       Announcer& announcer, ContrastModel& model,
                                       SwatchTarget target)
    : m_surroundings(surroundings), m_announcer(announcer), m_model(model), m_target(target) {}

ContrastActionMenu::~ContrastActionMenu() = default;

void ContrastActionMenu::popup(QWidget& button) {
    m_menu = build();
    const QPoint corner = button.mapToGlobal(QPoint(button.width(), button.height()));
    m_menu->popup(corner + QPoint(-m_menu->sizeHint().width(), metrics::space4));
}

std::unique_ptr<Menu> ContrastActionMenu::build() {
    auto menu = std::make_unique<Menu>(m_surroundings.look);
    addCopyAs(*menu);
    addPaste(*menu);
    menu->addSeparator();
    addFixes(*menu);
    return menu;
}

void ContrastActionMenu::addCopyAs(Menu& menu) {
    Menu* formats = menu.addSubmenu(tr("Copy As", "Action menu section"));
    for (const ColorFormatGroup& group : formatGroups()) {
        if (!formats->actions().isEmpty())
            formats->addSeparator();
        formats->addHeader(english(group.title));
        for (const ColorFormat format : group.formats) {
            QAction* row = formats->addRow(english(displayName(format)));
            connect(row, &QAction::triggered, this, [this, format] { copyAs(format); });
        }
    }
}

void ContrastActionMenu::addPaste(Menu& menu) {
    QAction* row = menu.addRow(tr("Paste from Clipboard", "Action menu section"));
    row->setEnabled(colorOn(m_surroundings.pasteboard).has_value());
    connect(row, &QAction::triggered, this, &ContrastActionMenu::paste);
}

void ContrastActionMenu::addFixes(Menu& menu) {
    const ContrastAlgorithm algorithm = m_surroundings.settings.contrastAlgorithm();
    bool isFirst = true;
    for (const ContrastFixGroup& group :
         ContrastVerdicts::fixGroups(algorithm, m_model.ratio(), m_model.lc())) {
        if (!std::exchange(isFirst, false))
            menu.addSeparator();
        menu.addHeader(group.title);
        for (const ContrastFix& fix : group.fixes) {
            QAction* row = menu.addRow(fix.title);
            row->setEnabled(fix.isEnabled);
            connect(row, &QAction::triggered, this,
                    [this, algorithm, wanted = fix.wanted] { applyFix(algorithm, wanted); });
        }
    }
}

void ContrastActionMenu::copyAs(ColorFormat format) {
    const QString text = m_surroundings.copier.copy(m_model.color(m_target), format);
    //: What a screen reader says after a copy; %1 is the text that was copied
    m_announcer.announce(tr("Copied %1", "Announcement").arg(text));
}

void ContrastActionMenu::paste() {
    later([this] {
        if (const auto color = colorOn(m_surroundings.pasteboard))
            m_model.setColor(m_target, *color);
    });
}

void ContrastActionMenu::applyFix(ContrastAlgorithm algorithm, double wanted) {
    later([this, algorithm, wanted] {
        if (algorithm == ContrastAlgorithm::apca)
            m_model.applyLcFix(m_target, wanted);
        else
            m_model.applyRatioFix(m_target, wanted);
    });
}

void ContrastActionMenu::later(std::function<void()> action) {
    m_later = m_surroundings.scheduler.after(std::chrono::milliseconds(0), std::move(action));
}

} // namespace dropshade
