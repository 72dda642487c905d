// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/SelectorFields.h"
#include "convert/ColorPickerModel.h"

#include "platform/Scheduler.h"

#include <memory>

namespace dropshade {

/// Between the model and the selectors of one window: the selectors follow the colour, and the
/// colour follows the selectors.
class SelectorLink : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this object.
    SelectorLink(ColorPickerModel& model, Scheduler& scheduler);

    /// What the selectors show.
    const HSBComponents& fields() const { return m_fields; }

    /// The user moved a selector. The colour follows once the selector's own update has ended.
    void setFields(const HSBComponents& fields);

    /// Lets the selectors follow the model's colour; without one nothing changes.
    void syncHSB();

Q_SIGNALS:
    /// The selectors shall show other values.
    void fieldsDidChange();

private:
    void applyFields();

    ColorPickerModel& m_model;
    Scheduler& m_scheduler;
    HSBComponents m_fields = firstSelectorFields;
    std::unique_ptr<ScheduledWork> m_step;
};

} // namespace dropshade
