// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "StoreFixture.h"
#include "palettes/PalettesModel.h"
#include "support/FakePaletteCommands.h"
#include "support/SignalCount.h"

namespace dropshade {

/// The window's model over the palettes of `PaletteStore`, with all that it asked for.
class PalettesWindowModel : public PaletteStore {
protected:
    PalettesWindowModel() {
        QObject::connect(&m_model, &PalettesModel::deletionAsked,
                         [this](const DeleteQuestion& question) { m_questions.append(question); });
        QObject::connect(&m_model, &PalettesModel::paletteRenameRequested,
                         [this](const QUuid& id) { m_renamed.append(id); });
        QObject::connect(&m_model, &PalettesModel::scaleRenameRequested,
                         [this](const QUuid&, const QUuid& scaleId) { m_renamed.append(scaleId); });
    }

    [[nodiscard]] SwatchPath path(qsizetype scale, qsizetype swatch) const {
        return {seaId(), scaleId(scale), swatchId(scale, swatch)};
    }
    /// "Sea" and "Land", each + or - by whether it is open.
    QString openness() {
        QString text;
        for (const Palette& palette : store().palettes())
            text += QLatin1Char(m_model.isExpanded(palette.id()) ? '+' : '-');
        return text;
    }
    QSet<QUuid> collapsed() { return store().collapsedPaletteIds(); }

    FakePaletteCommands m_commands;
    PalettePresets m_presets{m_machine.scheduler()};
    PalettesModel m_model{{m_machine.defaults(), m_machine.scheduler(), m_machine.settings(),
                           m_machine.store(), m_presets, m_commands}};
    QList<DeleteQuestion> m_questions;
    QList<QUuid> m_renamed;
};

} // namespace dropshade
