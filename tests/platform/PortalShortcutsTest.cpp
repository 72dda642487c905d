// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalShortcuts.h"

#include "support/FakePortal.h"
#include "support/QtPrinters.h"

#include <QGuiApplication>
#include <QTest>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using State = DesktopShortcuts::State;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int patienceMilliseconds = 5000;
/// For what must not come.
constexpr int settlingMilliseconds = 60;

const QString pick = QStringLiteral("pickColor");
const QString convert = QStringLiteral("convert");

/// On the session bus of a virtual desktop; without one there is nothing to test.
class PortalShortcutsTest : public testing::Test {
protected:
    void SetUp() override {
        if (!FakePortal::canBe())
            GTEST_SKIP() << "needs a session bus";
        m_portal = std::make_unique<FakePortal>();
        m_portal->offerShortcuts(1);
    }
    void start() {
        m_shortcuts = std::make_unique<PortalShortcuts>();
        QObject::connect(m_shortcuts.get(), &DesktopShortcuts::pressed, m_shortcuts.get(),
                         [this](const QString& id) { m_events.append(u'+' + id); });
        QObject::connect(m_shortcuts.get(), &DesktopShortcuts::released, m_shortcuts.get(),
                         [this](const QString& id) { m_events.append(u'-' + id); });
        QObject::connect(m_shortcuts.get(), &DesktopShortcuts::refused, m_shortcuts.get(),
                         [this] { ++m_refusals; });
    }
    [[nodiscard]] bool reaches(State state) {
        return QTest::qWaitFor([&] { return m_shortcuts->state() == state; }, patienceMilliseconds);
    }
    [[nodiscard]] bool isAskedForKeys(int times = 1) {
        return QTest::qWaitFor([&] { return m_portal->bindings() == times && m_portal->isAsked(); },
                               patienceMilliseconds);
    }
    void bind() {
        m_shortcuts->bind(
            {{pick, QStringLiteral("Quick Pick"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_C)},
             {convert, QStringLiteral("Color Picker"), {}}});
    }
    void startBound() {
        start();
        bind();
        ASSERT_TRUE(isAskedForKeys());
        m_portal->giveKeys(
            {{pick, QStringLiteral("Ctrl+Alt+C")}, {convert, QStringLiteral("Meta+P")}});
        ASSERT_TRUE(reaches(State::Bound));
    }
    static void settle() { QTest::qWait(settlingMilliseconds); }
    [[nodiscard]] bool hears(const QStringList& events) {
        return QTest::qWaitFor([&] { return m_events == events; }, patienceMilliseconds);
    }

    std::unique_ptr<FakePortal> m_portal;
    std::unique_ptr<PortalShortcuts> m_shortcuts;
    QStringList m_events;
    int m_refusals = 0;
};

TEST_F(PortalShortcutsTest, APortalWithKeysToGiveIsAskedForNoneUnasked) {
    start();
    EXPECT_EQ(m_shortcuts->state(), State::Unavailable);
    EXPECT_TRUE(reaches(State::Unbound));
    settle();
    EXPECT_EQ(m_portal->session(), QString());
}

TEST_F(PortalShortcutsTest, APortalWithoutKeysToGiveIsNone) {
    m_portal->offerShortcuts(0);
    start();
    settle();
    EXPECT_EQ(m_shortcuts->state(), State::Unavailable);
    bind();
    EXPECT_EQ(m_shortcuts->state(), State::Asking);
    EXPECT_TRUE(reaches(State::Unavailable));
    EXPECT_EQ(m_refusals, 0);
}

TEST_F(PortalShortcutsTest, AMissingPortalIsNoneAndIsFoundWhenItComes) {
    m_portal->vanish();
    start();
    bind();
    EXPECT_TRUE(reaches(State::Unavailable));
    m_portal->comeBack();
    EXPECT_TRUE(isAskedForKeys());
    m_portal->giveKeys({{pick, QStringLiteral("F9")}});
    EXPECT_TRUE(reaches(State::Bound));
}

TEST_F(PortalShortcutsTest, TheWishesGoAlongWithWordsAndProposals) {
    startBound();
    ASSERT_EQ(m_portal->wishes().size(), 2);
    const auto detail = [&](int index, const char* name) {
        return m_portal->wishes().at(index).details.value(QLatin1String(name)).toString();
    };
    EXPECT_EQ(m_portal->wishes().at(0).id, pick);
    EXPECT_EQ(detail(0, "description"), QStringLiteral("Quick Pick"));
    EXPECT_EQ(detail(0, "preferred_trigger"), QStringLiteral("CTRL+ALT+c"));
    EXPECT_EQ(detail(1, "description"), QStringLiteral("Color Picker"));
    EXPECT_FALSE(m_portal->wishes().at(1).details.contains(QStringLiteral("preferred_trigger")));
}

TEST_F(PortalShortcutsTest, KeysOfAnotherProgramsSessionAreNotOurs) {
    startBound();
    m_portal->press(QStringLiteral("/org/freedesktop/portal/desktop/session/1_7/other"), pick);
    m_portal->press(QStringLiteral("/"), pick);
    m_portal->press(m_portal->session(), convert);
    EXPECT_TRUE(hears({u'+' + convert}));
}

TEST_F(PortalShortcutsTest, TheNameOfAKeyComesWithoutNeedlessBlanks) {
    startBound();
    m_portal->changeKeys({{pick, QStringLiteral("  F7\n")}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_shortcuts->trigger(pick) == QStringLiteral("F7"); },
                                patienceMilliseconds));
}

TEST_F(PortalShortcutsTest, AnEndlessNameOfAKeyIsCut) {
    startBound();
    m_portal->changeKeys({{pick, QString(5000, u'x')}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_shortcuts->trigger(pick).startsWith(u'x'); },
                                patienceMilliseconds));
    EXPECT_LE(m_shortcuts->trigger(pick).size(), 40);
}

TEST_F(PortalShortcutsTest, AnAnswerWithoutKeysIsABindingWithoutKeys) {
    for (const QVariant& shortcuts :
         {QVariant(), QVariant(QStringLiteral("F7")), QVariant(QStringList{pick})}) {
        start();
        bind();
        ASSERT_TRUE(isAskedForKeys(m_portal->bindings() + 1));
        m_portal->answer(0, shortcuts.isValid()
                                ? QVariantMap{{QStringLiteral("shortcuts"), shortcuts}}
                                : QVariantMap());
        EXPECT_TRUE(reaches(State::Bound));
        EXPECT_EQ(m_shortcuts->trigger(pick), QString());
    }
}

TEST_F(PortalShortcutsTest, ARefusedSessionIsClosed) {
    for (const uint code : {1U, 2U}) {
        m_refusals = 0;
        start();
        bind();
        ASSERT_TRUE(isAskedForKeys(m_portal->bindings() + 1));
        m_portal->answer(code, {});
        EXPECT_TRUE(reaches(State::Unbound));
        EXPECT_EQ(m_refusals, 1);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return m_portal->closedSessions().contains(m_portal->session()); },
            patienceMilliseconds));
    }
}

TEST_F(PortalShortcutsTest, ASecondBindingHasASessionOfItsOwn) {
    startBound();
    const QString first = m_portal->session();
    bind();
    ASSERT_TRUE(isAskedForKeys(2));
    EXPECT_NE(m_portal->session(), first);
    EXPECT_THAT(m_portal->closedSessions(), ElementsAre(first));
    EXPECT_EQ(m_shortcuts->trigger(pick), QString());
}

TEST_F(PortalShortcutsTest, APortalThatIsStartedAnewIsAskedForTheSameAgain) {
    startBound();
    m_portal->press(m_portal->session(), pick);
    ASSERT_TRUE(hears({u'+' + pick}));
    m_portal->vanish();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_shortcuts->state() != State::Bound; },
                                patienceMilliseconds));
    EXPECT_EQ(m_shortcuts->trigger(pick), QString());
    m_portal->comeBack();
    ASSERT_TRUE(isAskedForKeys(2));
    m_portal->giveKeys({{pick, QStringLiteral("F9")}});
    EXPECT_TRUE(reaches(State::Bound));
    EXPECT_EQ(m_shortcuts->trigger(pick), QStringLiteral("F9"));
    m_portal->press(m_portal->session(), pick);
    EXPECT_TRUE(hears({u'+' + pick, u'+' + pick}));
}

TEST_F(PortalShortcutsTest, ASessionThatTheDesktopClosesIsNoBindingAnyMore) {
    startBound();
    m_portal->closeSession();
    EXPECT_TRUE(reaches(State::Unbound));
    m_portal->press(m_portal->session(), pick);
    settle();
    EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(PortalShortcutsTest, OnlyAPortalThatCanShowItsSettingsIsAskedTo) {
    startBound();
    EXPECT_FALSE(m_shortcuts->canConfigure());
    m_shortcuts->configure();
    settle();
    EXPECT_EQ(m_portal->configurations(), 0);

    m_portal->offerShortcuts(2);
    start();
    bind();
    ASSERT_TRUE(isAskedForKeys(2));
    EXPECT_FALSE(m_shortcuts->canConfigure());
    m_portal->giveKeys({});
    ASSERT_TRUE(reaches(State::Bound));
    EXPECT_TRUE(m_shortcuts->canConfigure());
    m_shortcuts->configure();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return m_portal->configurations() == 1; }, patienceMilliseconds));
}

TEST_F(PortalShortcutsTest, ADesktopThatCantShowItsSettingsAfterAllIsAskedOnce) {
    m_portal->offerShortcuts(2);
    m_portal->refuseConfiguration();
    startBound();
    EXPECT_TRUE(m_shortcuts->canConfigure());
    m_shortcuts->configure();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return !m_shortcuts->canConfigure(); }, patienceMilliseconds));
    EXPECT_EQ(m_shortcuts->state(), State::Bound);
}

TEST_F(PortalShortcutsTest, TheEndOfTheProgramClosesTheSession) {
    startBound();
    m_shortcuts.reset();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return m_portal->closedSessions() == QStringList{m_portal->session()}; },
        patienceMilliseconds));
}

TEST_F(PortalShortcutsTest, TheProgramIntroducesItselfByItsDesktopEntry) {
    QGuiApplication::setDesktopFileName(QStringLiteral("org.dropshade.Dropshade"));
    introduceToPortal();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return m_portal->introductions() ==
                   QStringList{QStringLiteral("org.dropshade.Dropshade")};
        },
        patienceMilliseconds));
}

} // namespace
} // namespace dropshade
