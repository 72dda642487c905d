// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/GenericErrorText.h"

#include <QCoreApplication>

namespace dropshade {

QString genericErrorText(const char* type) {
    return QCoreApplication::translate(
               "GenericErrorText", "The operation couldn't be completed. (%1)",
               "An error without words of its own; %1 is its technical name")
        .arg(QLatin1String(type));
}

} // namespace dropshade
