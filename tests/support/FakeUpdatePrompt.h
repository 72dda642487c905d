// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/UpdatePrompt.h"

#include <QList>

#include <utility>

namespace dropshade {

/// A user who sees what happens and answers when the test says so.
class FakeUpdatePrompt : public UpdatePrompt {
public:
    void offer(const UpdateItem& item, const VersionNumber&,
               std::function<void(Answer)> answer) override {
        m_offers.append(item);
        m_answer = std::move(answer);
    }
    void raiseOffer() override { ++m_raiseCount; }
    void tellUpToDate(const VersionNumber& current) override { m_upToDate.append(current.text()); }
    void tellFailure(UpdateFailure failure) override { m_failures.append(failure); }
    void openPage(const QUrl& page) override { m_pages.append(page); }

    [[nodiscard]] bool isOffering() const { return m_answer != nullptr; }
    void answer(Answer answer) { std::exchange(m_answer, nullptr)(answer); }

    [[nodiscard]] const QList<UpdateItem>& offers() const { return m_offers; }
    [[nodiscard]] int raiseCount() const { return m_raiseCount; }
    [[nodiscard]] const QStringList& upToDate() const { return m_upToDate; }
    [[nodiscard]] const QList<UpdateFailure>& failures() const { return m_failures; }
    [[nodiscard]] const QList<QUrl>& pages() const { return m_pages; }

    /// Everything that was shown to the user.
    [[nodiscard]] qsizetype interruptionCount() const {
        return m_offers.size() + m_raiseCount + m_upToDate.size() + m_failures.size();
    }

private:
    std::function<void(Answer)> m_answer;
    QList<UpdateItem> m_offers;
    int m_raiseCount = 0;
    QStringList m_upToDate;
    QList<UpdateFailure> m_failures;
    QList<QUrl> m_pages;
};

} // namespace dropshade
