// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>

namespace dropshade {

/// One question to the desktop portal, which answers some time later on an object that it makes for
/// the question. The question ends with this object: what comes afterwards is not heard.
class PortalRequest : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        Done,
        Refused, ///< The user, or the desktop in the user's place, said no.
        Failed   ///< There is no portal, it doesn't know the question, or it ended over it.
    };
    using Answer = std::function<void(Outcome outcome, const QVariantMap& results)>;

    struct Question {
        QString interface;
        QString method;
        /// All but the last one, which is `options`.
        QVariantList arguments;
        QVariantMap options = {};
    };

    /// Asks. `answer` is called once, and never from here; it may delete this object.
    PortalRequest(const Question& question, Answer answer);

private Q_SLOTS:
    void response(const QDBusMessage& message);

private:
    void listenTo(const QString& request);
    void finish(Outcome outcome, const QVariantMap& results = {});

    Answer m_answer;
    QString m_request;
    QDBusServiceWatcher m_portalWatch;
};

} // namespace dropshade
