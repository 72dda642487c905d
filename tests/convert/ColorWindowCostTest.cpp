// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// What the windows cost: memory over many openings, and a generous bound on their times. The
// figures themselves are in docs/measurements.md.
#include "ColorSelector/SelectorPanel.h"
#include "contrast/ContrastWindow.h"
#include "contrast/ContrastWindowController.h"
#include "convert/ColorPickerWindow.h"
#include "convert/ColorPickerWindowController.h"
#include "convert/FormatList.h"
#include "support/ColorWindowFixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace dropshade {
namespace {

double residentMegabytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    return file.readAll().split(' ').value(1).toDouble() * 4096.0 / 1e6;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

class ColorWindowCostTest : public testing::Test {
protected:
    ColorWindowFixture m_fixture;
    ColorPickerWindowController m_convert{m_fixture.surroundings};
    ContrastWindowController m_contrast{m_fixture.surroundings, [] {}};

    void openAndCloseBoth() {
        m_convert.show();
        m_contrast.show();
        QApplication::processEvents();
        m_convert.window()->close();
        m_contrast.window()->close();
        ColorWindowFixture::deleteDropped();
        QApplication::processEvents();
    }
};

TEST_F(ColorWindowCostTest, AThousandOpeningsLeaveNothingBehind) {
    m_convert.model().setInput(QStringLiteral("rgb(228 87 46 / 0.75)"));
    for (int round = 0; round < 100; ++round)
        openAndCloseBoth();
    const double before = residentMegabytes();
    for (int round = 0; round < 1000; ++round)
        openAndCloseBoth();
    RecordProperty("grownKilobytes", static_cast<int>((residentMegabytes() - before) * 1000));
    EXPECT_LT(residentMegabytes() - before, 3.0);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(ColorWindowCostTest, AWindowIsThereSoonAfterItIsAskedFor) {
    openAndCloseBoth();
    std::vector<double> times;
    for (int round = 0; round < 20; ++round) {
        times.push_back(millisecondsOf([this] {
            m_convert.show();
            QApplication::processEvents();
            m_convert.window()->grab();
        }));
        m_convert.window()->close();
        ColorWindowFixture::deleteDropped();
    }
    RecordProperty("openMicroseconds", static_cast<int>(median(times) * 1000));
    EXPECT_LT(median(times), 80.0);
}

TEST_F(ColorWindowCostTest, ADragInTheSquareUpdatesAllRowsWithinAFrame) {
    m_convert.show();
    m_convert.model().setInput(QStringLiteral("#E4572E"));
    QApplication::processEvents();
    SelectorPanel& panel = m_convert.window()->selectors();
    std::vector<double> times;
    for (int move = 1; move <= 200; ++move) {
        HSBComponents fields = panel.components();
        fields.saturation = move / 200.0;
        times.push_back(millisecondsOf([&] {
            panel.setComponents(fields);
            Q_EMIT panel.componentsChanged(fields);
            m_fixture.scheduler.advance(0);
            QApplication::processEvents();
        }));
    }
    RecordProperty("dragMicroseconds", static_cast<int>(median(times) * 1000));
    EXPECT_LT(median(times), 8.0);
    EXPECT_EQ(m_convert.window()->formats().row(ColorFormat::hex)->value(),
              m_convert.model().input());
}

} // namespace
} // namespace dropshade
