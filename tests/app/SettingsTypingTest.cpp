// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// What is typed in a field of the settings while something else happens.

#include "app/SettingsReaders.h"
#include "support/SettingsFixture.h"

namespace dropshade {
namespace {

class SettingsTyping : public SettingsFixture {
protected:
    /// Types and leaves the keyboard in the field.
    void begin(TextField* field, const char* text) {
        // A menu that has just closed gives the keyboard back.
        QCoreApplication::processEvents();
        QApplication::setActiveWindow(&window());
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
};

TEST_F(SettingsTyping, ANumberCountsBeforeTheToggleThatIsClickedNext) {
    begin(find<TextField>("Recent colors in menu"), "5");
    click(toggle("Use lowercase for copied colors"));
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::recentColorsLimit), 5);
    EXPECT_EQ(find<TextField>("Recent colors in menu")->text(), QStringLiteral("5"));
    EXPECT_TRUE(toggle("Use lowercase for copied colors")->isChecked());
}

TEST_F(SettingsTyping, ANumberStaysWhileAnotherMachinesSettingsArrive) {
    auto* field = find<TextField>("Recent colors in menu");
    begin(field, "1");
    fakes.defaults.setValue(keys::useLowercase, true);
    delegate.settings().reloadFromDefaults();
    EXPECT_TRUE(toggle("Use lowercase for copied colors")->isChecked());
    EXPECT_EQ(field->text(), QStringLiteral("1"));
    QTest::keyClicks(field, QStringLiteral("2"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("12"));
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::recentColorsLimit), 12);
}

TEST_F(SettingsTyping, TheServerThatIsTestedIsTheOneThatWasTyped) {
    click(toggle("Sync via iCloud"));
    choose(find<Picker>("Keep data in"), QStringLiteral("An etcd server"));
    begin(find<TextField>("Address"), "etcd.home.arpa:2379");
    const auto buttons = window().findChildren<TextButton*>();
    click(*std::find_if(buttons.begin(), buttons.end(), [](const TextButton* button) {
        return button->text() == QStringLiteral("Test connection");
    }));
    EXPECT_EQ(fakes.cloudAccounts.checkedAccount.address,
              QStringLiteral("https://etcd.home.arpa:2379"));
}

} // namespace
} // namespace dropshade
