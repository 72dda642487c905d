// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace dropshade {

/// The names of what a palette file has no name for.
class ImportedNames {
    Q_DECLARE_TR_FUNCTIONS(ImportedNames)

public:
    static QString palette() {
        //: The name of a palette read from a file that gives it none.
        return tr("Imported Palette");
    }

    static QString scaleOfLooseColors() {
        //: The name of a row of colours that stood in no group of their file.
        return tr("Colors");
    }
};

} // namespace dropshade
