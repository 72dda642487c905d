// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/replica/BackgroundCheck.h"

#include <QPointer>
#include <QThread>

#include <utility>

namespace dropshade {
namespace {

/// Ends by itself, with nobody left to wait for it.
class CheckThread : public QThread {
public:
    explicit CheckThread(std::function<QString()> work) : m_work(std::move(work)) {
        connect(this, &QThread::finished, this, &QObject::deleteLater);
    }
    [[nodiscard]] QString words() const { return m_words; }

private:
    void run() override { m_words = m_work(); }

    std::function<QString()> m_work;
    QString m_words;
};

} // namespace

BackgroundCheck::BackgroundCheck(std::function<QString()> work, CloudAccounts::Answer answer) {
    auto* thread = new CheckThread(std::move(work));
    connect(thread, &QThread::finished, this, [thread, answer = std::move(answer)] {
        // Copied, for the answer may destroy the check, and the check this very function.
        const auto call = answer;
        call(thread->words());
    });
    thread->start();
}

QString missingPartWords() {
    //: The part of the program that goes online isn't installed.
    return BackgroundCheck::tr("A part of Dropshade that sync needs is missing.");
}

} // namespace dropshade
