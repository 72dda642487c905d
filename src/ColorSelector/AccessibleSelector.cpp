// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/AccessibleSelector.h"

#include "ColorSelector/Selector.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace dropshade {

namespace {

class AccessibleSelector : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleSelector(Selector& selector)
        : QAccessibleWidget(&selector, QAccessible::Slider), m_selector(selector) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value || kind == QAccessible::Description
                   ? m_selector.spokenValue()
                   : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_selector.mainValue(); }
    void setCurrentValue(const QVariant& value) override {
        m_selector.userSetMainValue(value.toDouble());
    }
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 0.01; }

private:
    Selector& m_selector;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* selector = qobject_cast<Selector*>(object);
    return selector ? new AccessibleSelector(*selector) : nullptr;
}

} // namespace

void installAccessibleSelectors() {
    QAccessible::installFactory(makeInterface);
}

} // namespace dropshade
