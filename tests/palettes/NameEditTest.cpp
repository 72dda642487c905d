// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/NameEdit.h"

#include "support/QtPrinters.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Renaming : public testing::Test {
protected:
    QStringList m_committed;
    NameEdit m_edit{QStringLiteral("Palette Name"), QStringLiteral("Sea"),
                    [this](const QString& name) { m_committed.append(name); }};
};

TEST_F(Renaming, GoingAwayByAnyPathTakesTheName) {
    m_edit.setName(QStringLiteral(" Ocean\n"));
    m_edit.dismissed();
    EXPECT_THAT(m_committed, ElementsAre(QStringLiteral("Ocean")));
}

TEST_F(Renaming, TakesTheNameOnce) {
    m_edit.dismissed();
    m_edit.dismissed();
    EXPECT_EQ(m_committed.size(), 1);
}

TEST_F(Renaming, ACancelTakesNothing) {
    m_edit.setName(QStringLiteral("Ocean"));
    m_edit.cancel();
    m_edit.dismissed();
    EXPECT_THAT(m_committed, IsEmpty());
}

TEST_F(Renaming, ANameOfOnlyBlanksIsNotTaken) {
    m_edit.setName(QStringLiteral(" \t "));
    m_edit.dismissed();
    EXPECT_THAT(m_committed, IsEmpty());
}

} // namespace
} // namespace dropshade
