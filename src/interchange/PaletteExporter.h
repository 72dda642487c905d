// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/PaletteExportFormat.h"
#include "palettes/Palette.h"
#include "platform/Alerts.h"
#include "platform/FilePanels.h"
#include "platform/Scheduler.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

namespace dropshade {

/// An export that failed for another reason than the file: `what` names it, for a developer.
class PaletteExporterError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The one door through which palettes go out.
class PaletteExporter {
    Q_DECLARE_TR_FUNCTIONS(PaletteExporter)

public:
    /// All three must outlive this object, and this object the panels that it has put up.
    PaletteExporter(Scheduler& scheduler, FilePanels& panels, Alerts& alerts)
        : m_scheduler(scheduler), m_panels(panels), m_alerts(alerts) {}

    /// Asks where to write the palette, and writes it as it is now, whatever happens to it while
    /// the panel is up. Returns at once: the panel comes when the menu that asked for it has gone.
    /// A failure is told in an alert.
    void exportPalette(const Palette& palette, PaletteExportFormat format);

    /// The palette's name without what file systems or shells take amiss, without an extension.
    [[nodiscard]] static QString suggestedFileName(const QString& paletteName);

    /// Writes the file in one step: after a failure the path has what it had before. The extension
    /// of `path` doesn't count. Throws `FileError`, or `PaletteExporterError` for a palette that
    /// the format has no room for.
    static void write(const Palette& palette, PaletteExportFormat format, const QString& path);

private:
    struct Request {
        Palette palette;
        PaletteExportFormat format;
    };

    void askWhere(const Request& request);
    void writeOrTell(const Request& request, const QString& path);

    Scheduler& m_scheduler;
    FilePanels& m_panels;
    Alerts& m_alerts;
    std::vector<Request> m_requests;
    std::unique_ptr<ScheduledWork> m_next;
};

} // namespace dropshade
