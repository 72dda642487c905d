// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/UniqueNames.h"

namespace dropshade {

QString UniqueNames::take(const QString& name) {
    qsizetype& next = m_nextNumbers[name];
    if (next == 0) {
        next = 2;
        return name;
    }
    // Numbers below the next one are taken for good, which keeps equal names from costing the
    // square of their count.
    qsizetype number = next;
    QString numbered;
    do
        numbered = m_numbered(name, number++);
    while (m_nextNumbers.contains(numbered));
    m_nextNumbers.insert(name, number);
    m_nextNumbers.insert(numbered, 2);
    return numbered;
}

} // namespace dropshade
