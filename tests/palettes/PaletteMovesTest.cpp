// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteMoves.h"
#include "WindowFixture.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Direction = PaletteMoves::Direction;

class MovingByKeys : public PalettesWindowModel {
protected:
    MovingByKeys() {
        QObject::connect(&m_moves, &PaletteMoves::announced,
                         [this](const QString& text) { m_spoken.append(text); });
    }

    PaletteMoves m_moves{m_model};
    QStringList m_spoken;
};

TEST_F(MovingByKeys, APaletteMovesOnePlaceAndItIsSaid) {
    EXPECT_TRUE(m_moves.movePalette(seaId(), Direction::Forward));
    EXPECT_EQ(names(), QStringLiteral("Land Sea"));
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("Sea moved to 2 of 2")));
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(openness(), QStringLiteral("++")) << "the palettes stay open, for the next step";
}

TEST_F(MovingByKeys, AScaleMovesOnePlaceAndItIsSaid) {
    EXPECT_TRUE(m_moves.moveScale(seaId(), scaleId(1), Direction::Backward));
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore Deep"));
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("Shore moved to 1 of 2")));
    expectStampedAndSaved();
}

TEST_F(MovingByKeys, ASwatchMovesOnePlaceAndItIsSaid) {
    EXPECT_TRUE(m_moves.moveSwatch(path(0, 0), Direction::Forward));
    EXPECT_EQ(values(0), QStringLiteral("blue navy aqua"));
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("navy moved to 2 of 3")));
    expectStampedAndSaved();
}

TEST_F(MovingByKeys, ASwatchMovesToTheSamePlaceOfTheNextScaleOrToItsEnd) {
    const auto moved = m_moves.moveSwatchToScale(path(0, 2), Direction::Forward);
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->scaleId, scaleId(1));
    EXPECT_EQ(values(0), QStringLiteral("navy blue"));
    EXPECT_EQ(values(1), QStringLiteral("tan aqua"));
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("aqua moved to Shore, place 2")));
    ASSERT_TRUE(m_moves.moveSwatchToScale(*moved, Direction::Backward));
    EXPECT_EQ(values(0), QStringLiteral("navy aqua blue"));
}

TEST_F(MovingByKeys, ALabelIsSaidWhereThereIsOne) {
    store().updateSwatch(
        seaId(), scaleId(0),
        PaletteSwatch(swatchId(0, 0), QStringLiteral("#000080"), QStringLiteral("midnight")));
    m_moves.moveSwatch(path(0, 0), Direction::Forward);
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("midnight moved to 2 of 3")));
}

TEST_F(MovingByKeys, ANameIsSaidAsItIsWhateverItHolds) {
    store().renamePalette(seaId(), QStringLiteral("50%2"));
    store().renameScale(seaId(), scaleId(0), QStringLiteral("%2%3"));
    store().renameScale(seaId(), scaleId(1), QStringLiteral("%3"));
    m_moves.movePalette(seaId(), Direction::Forward);
    m_moves.moveScale(seaId(), scaleId(0), Direction::Forward);
    m_moves.moveSwatchToScale(path(0, 2), Direction::Backward);
    EXPECT_THAT(m_spoken, ElementsAre(QStringLiteral("50%2 moved to 2 of 2"),
                                      QStringLiteral("%2%3 moved to 2 of 2"),
                                      QStringLiteral("aqua moved to %3, place 2")));
}

TEST_F(MovingByKeys, AStepBeyondAnEndDoesNothing) {
    EXPECT_FALSE(m_moves.movePalette(seaId(), Direction::Backward));
    EXPECT_FALSE(m_moves.movePalette(landId(), Direction::Forward));
    EXPECT_FALSE(m_moves.moveScale(seaId(), scaleId(0), Direction::Backward));
    EXPECT_FALSE(m_moves.moveSwatch(path(0, 2), Direction::Forward));
    EXPECT_FALSE(m_moves.moveSwatchToScale(path(0, 0), Direction::Backward));
    EXPECT_THAT(m_spoken, IsEmpty());
    expectUntouched();
}

TEST_F(MovingByKeys, WhatIsGoneDoesNotMove) {
    const QUuid gone = QUuid::createUuid();
    EXPECT_FALSE(m_moves.movePalette(gone, Direction::Forward));
    EXPECT_FALSE(m_moves.movePalette(gone, Direction::Backward));
    EXPECT_FALSE(m_moves.moveScale(gone, gone, Direction::Forward));
    EXPECT_FALSE(m_moves.moveScale(seaId(), gone, Direction::Forward));
    EXPECT_FALSE(m_moves.moveSwatch({seaId(), scaleId(0), gone}, Direction::Forward));
    EXPECT_FALSE(m_moves.moveSwatchToScale({seaId(), gone, gone}, Direction::Forward));
    expectUntouched();
}

} // namespace
} // namespace dropshade
