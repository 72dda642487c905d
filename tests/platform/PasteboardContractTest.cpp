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

/// As another program copies it.
template <typename Adapter>
void copyElsewhere(Adapter& pasteboard, std::unique_ptr<QMimeData> content) {
    if constexpr (std::is_same_v<Adapter, FakePasteboard>)
        pasteboard.setContent(std::move(content));
    else
        QGuiApplication::clipboard()->setMimeData(content.release());
}

TYPED_TEST(PasteboardContract, GivesAnImageInTheBytesThatWereCopied) {
    const QByteArray bytes("\x89PNG\r\n\x1a\n\0 and more", 19);
    auto copied = std::make_unique<QMimeData>();
    copied->setData(QStringLiteral("image/png"), bytes);
    copyElsewhere(this->m_pasteboard, std::move(copied));
    const QMimeData* content = this->m_pasteboard.content();
    ASSERT_NE(content, nullptr);
    EXPECT_TRUE(content->hasFormat(QStringLiteral("image/png")));
    EXPECT_EQ(content->data(QStringLiteral("image/png")), bytes);
}

TYPED_TEST(PasteboardContract, GivesTheLocationsOfCopiedFiles) {
    const QList<QUrl> urls{QUrl(QStringLiteral("file:///tmp/a%20b.png")),
                           QUrl(QStringLiteral("file:///tmp/c.png"))};
    auto copied = std::make_unique<QMimeData>();
    copied->setUrls(urls);
    copyElsewhere(this->m_pasteboard, std::move(copied));
    const QMimeData* content = this->m_pasteboard.content();
    ASSERT_NE(content, nullptr);
    EXPECT_EQ(content->urls(), urls);
    EXPECT_EQ(this->m_pasteboard.text(), QString());
}

TYPED_TEST(PasteboardContract, ATextOfItsOwnIsAllThatItThenOffers) {
    auto copied = std::make_unique<QMimeData>();
    copied->setData(QStringLiteral("image/png"), QByteArray("x"));
    copyElsewhere(this->m_pasteboard, std::move(copied));
    this->m_pasteboard.setText(QStringLiteral("#FF0000"));
    const QMimeData* content = this->m_pasteboard.content();
    ASSERT_NE(content, nullptr);
    EXPECT_FALSE(content->hasFormat(QStringLiteral("image/png")));
    EXPECT_TRUE(content->urls().isEmpty());
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
