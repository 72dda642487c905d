// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/Pasteboard.h"

#include "platform/linux/QtPasteboard.h"
#include "platform/linux/X11Pasteboard.h"
#include "support/FakePasteboard.h"

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

template <typename Adapter>
class PasteboardContract : public testing::Test {
protected:
    PasteboardContract() { QGuiApplication::clipboard()->clear(); }

    Adapter m_pasteboard;
};

struct AdapterNames {
    template <typename Adapter>
    static std::string GetName(int) {
        if constexpr (std::is_same_v<Adapter, FakePasteboard>)
            return "Fake";
        return std::is_same_v<Adapter, QtPasteboard> ? "Qt" : "X11";
    }
};

using Adapters = testing::Types<FakePasteboard, QtPasteboard, X11Pasteboard>;
TYPED_TEST_SUITE(PasteboardContract, Adapters, AdapterNames);

TYPED_TEST(PasteboardContract, HasNoTextAtFirst) {
    EXPECT_EQ(this->m_pasteboard.text(), QString());
}

TYPED_TEST(PasteboardContract, GivesTheTextBackThatWasSetLast) {
    this->m_pasteboard.setText(QStringLiteral("#FF0000"));
    const QString text = QStringLiteral(u"rgb(1, 2, 3)\n色 \U0001f3a8");
    this->m_pasteboard.setText(text);
    EXPECT_EQ(this->m_pasteboard.text(), text);
}

TYPED_TEST(PasteboardContract, TakesAnEmptyText) {
    this->m_pasteboard.setText(QStringLiteral("#FF0000"));
    this->m_pasteboard.setText(QString());
    EXPECT_EQ(this->m_pasteboard.text(), QString());
}

TEST(FakePasteboardRecord, HoldsEachTextOfTheProgramAlone) {
    FakePasteboard pasteboard;
    pasteboard.setText(QStringLiteral("a"));
    pasteboard.setTextFromAnotherProgram(QStringLiteral("b"));
    EXPECT_EQ(pasteboard.text(), QStringLiteral("b"));
    pasteboard.setText(QStringLiteral("a"));
    EXPECT_EQ(pasteboard.copies(), QStringList(2, QStringLiteral("a")));
}

TEST(QtPasteboard, ReplacesWhatWasThereByPlainTextAlone) {
    auto* content = new QMimeData;
    content->setHtml(QStringLiteral("<b>x</b>"));
    content->setColorData(QColor(Qt::red));
    QGuiApplication::clipboard()->setMimeData(content);
    QtPasteboard().setText(QStringLiteral("#FF0000"));
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->formats(),
              QStringList{QStringLiteral("text/plain")});
}

TEST(QtPasteboard, ReadsNoTextFromOtherContent) {
    auto* content = new QMimeData;
    content->setUrls({QUrl(QStringLiteral("file:///a.png"))});
    QGuiApplication::clipboard()->setMimeData(content);
    EXPECT_EQ(QtPasteboard().text(), QString());
}

TEST(QtPasteboard, ReadsThePlainFormOfRichText) {
    auto* content = new QMimeData;
    content->setHtml(QStringLiteral("<b>x</b>"));
    content->setText(QStringLiteral("x"));
    QGuiApplication::clipboard()->setMimeData(content);
    EXPECT_EQ(QtPasteboard().text(), QStringLiteral("x"));
}

} // namespace
} // namespace dropshade
