// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/PaletteExportFormat.h"
#include "palettes/Palette.h"
#include "platform/Alerts.h"
#include "platform/BackgroundLine.h"
#include "platform/FilePanels.h"
#include "platform/Scheduler.h"

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

namespace dropshade {

/// An export that failed for another reason than the file: `what` names it, for a developer.
class PaletteExporterError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The one door through which palettes go out. Files are made and written beside the main thread,
/// which a poster of many swatches would hold up for a second, and one after another, so that of
/// two to one path the later stays.
class PaletteExporter {
    Q_DECLARE_TR_FUNCTIONS(PaletteExporter)

public:
    /// All four must outlive this object, and this object the panels that it has put up. Its end
    /// drops the exports that haven't begun.
    PaletteExporter(Scheduler& scheduler, BackgroundQueue& backgroundQueue, FilePanels& panels,
                    Alerts& alerts)
        : m_scheduler(scheduler), m_panels(panels), m_alerts(alerts), m_line(backgroundQueue) {}

    /// Asks where to write the palette, and writes it as it is now, whatever happens to it while
    /// the panel is up. Returns at once: the panel comes when the menu that asked for it has gone.
    /// A failure is told in an alert.
    void exportPalette(const Palette& palette, PaletteExportFormat format);

    /// Calls `action` as soon as no file is on its way: at once where none is, and never where one
    /// fails, since the user is to see its alert. A later call takes the place of an earlier one.
    void whenWritten(std::function<void()> action) { m_line.whenEmpty(std::move(action)); }

    /// Has the files that are on their way written before it returns. For the end of the program: a
    /// failure goes to the log.
    void finish();

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
    void tell(const QString& failure);

    Scheduler& m_scheduler;
    FilePanels& m_panels;
    Alerts& m_alerts;
    std::vector<Request> m_requests;
    std::unique_ptr<ScheduledWork> m_next;
    /// A task for each file.
    BackgroundLine m_line;
    bool m_isAtEnd = false;
};

} // namespace dropshade
