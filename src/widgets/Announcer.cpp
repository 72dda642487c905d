// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace dropshade {

namespace {

/// As long as a screen reader may take to come and read the sentence.
constexpr std::chrono::seconds noticeLife{3};

/// A window of one pixel, for screen readers say what the notices say that come up.
class Notice : public QWidget {
    Q_OBJECT

public:
    explicit Notice(const QString& sentence)
        : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                               Qt::WindowDoesNotAcceptFocus) {
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_DeleteOnClose);
        setAccessibleName(sentence);
        setGeometry(0, 0, 1, 1);
    }
};

class AccessibleNotice : public QAccessibleWidget {
public:
    explicit AccessibleNotice(QWidget* notice)
        : QAccessibleWidget(notice, QAccessible::Notification) {}
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* notice = qobject_cast<Notice*>(object);
    return notice ? new AccessibleNotice(notice) : nullptr;
}

} // namespace

Announcer::~Announcer() {
    delete m_notice;
}

void Announcer::announce(const QString& sentence) {
    if (!QAccessible::isActive())
        return;
    QAccessible::installFactory(makeInterface);
    delete m_notice;
    m_notice = new Notice(sentence);
    m_notice->show();
    QAccessibleEvent shown(m_notice, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    QTimer::singleShot(noticeLife, m_notice, &QWidget::close);
}

} // namespace dropshade

#include "Announcer.moc"
