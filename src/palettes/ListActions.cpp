// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ListActions.h"

#include <QCursor>

namespace dropshade {

using Part = ListElement::Part;

void ListActions::activate(const ListElement& element) {
    switch (element.part) {
    case Part::Header:
        m_model.toggleExpanded(element.paletteId);
        break;
    case Part::Options:
        Q_EMIT menuRequested(element, QCursor::pos());
        break;
    case Part::Label:
        Q_EMIT scaleRenameRequested(element.paletteId, element.scaleId);
        break;
    case Part::Swatch:
        m_model.copySwatch(element.path());
        break;
    case Part::AddSwatch:
        Q_EMIT swatchAddRequested(element.paletteId, element.scaleId);
        break;
    case Part::AddScale:
        m_model.addScale(element.paletteId);
        break;
    case Part::Grip:
    case Part::None:
        break;
    }
}

void ListActions::edit(const ListElement& element) {
    if (element.part == Part::Swatch)
        Q_EMIT swatchEditRequested(element.path());
    else if (!element.scaleId.isNull())
        Q_EMIT scaleRenameRequested(element.paletteId, element.scaleId);
    else if (!element.isNone())
        Q_EMIT paletteRenameRequested(element.paletteId);
}

void ListActions::remove(const ListElement& element, bool asks) {
    if (element.part == Part::Swatch)
        m_model.deleteSwatch(element.path(), asks);
    else if (element.part == Part::Label)
        m_model.deleteScale(element.paletteId, element.scaleId, asks);
    else if (element.part == Part::Header)
        m_model.deletePalette(element.paletteId, asks);
}

void ListActions::showMenu(const ListElement& element, const QPoint& at) {
    if (!element.isNone())
        Q_EMIT menuRequested(element, at);
}

std::optional<QString> ListActions::hint(const ListElement& element) {
    const bool hasMenu = element.part == Part::Header || element.part == Part::Options ||
                         element.part == Part::Label || element.part == Part::Grip;
    if (!hasMenu)
        return std::nullopt;
    //: Status bar hint when hovering a palette or scale label
    return tr("Control-click for options");
}

QString ListActions::toolTip(const ListElement& element) {
    if (element.part == Part::Options)
        //: Tooltip of a button in the header of a palette
        return tr("Palette options");
    if (element.part == Part::AddSwatch)
        //: Tooltip of the button behind the swatches of a scale
        return tr("Add color");
    return {};
}

} // namespace dropshade
