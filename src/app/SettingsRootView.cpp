// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsRootView.h"

#include "KeyboardShortcuts/RecorderCocoa.h"
#include "KeyboardShortcuts/TriggerField.h"
#include "app/CloudSyncStatusLabel.h"
#include "app/CopySound.h"
#include "app/MenuBarIconPicker.h"
#include "app/SyncAccountView.h"
#include "widgets/Picker.h"
#include "widgets/SegmentedControl.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/Toggle.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLocale>

#include <utility>

namespace dropshade {
namespace {

constexpr int pickerWidth = 176;
constexpr int formatWidth = 208;
constexpr int numberWidth = 60;
constexpr int fewestDecimalPlaces = 2;

QString text(std::string_view latin) {
    return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

} // namespace

SettingsRootView::SettingsRootView(const Surroundings& surroundings)
    : SettingsForm(surroundings.look), m_with(surroundings), m_model(surroundings.model) {
    buildGeneral();
    buildSync();
    buildFormat();
    buildHotkeys();
    connect(&m_model, &SettingsModel::didChange, this, &SettingsRootView::showValues);
    connect(&m_model, &SettingsModel::syncStatusDidChange, this, &SettingsRootView::showSyncStatus);
    showValues();
}

Toggle* SettingsRootView::addToggle(const QString& name, void (SettingsModel::*set)(bool),
                                    SettingsRow** row) {
    auto* toggle = new Toggle(m_with.look, name, this);
    // The user's clicks alone, not what shows the model's values. The model is named: through
    // `this` a call of a member pointer goes astray where GCC 12 checks for undefined behaviour.
    connect(toggle, &QAbstractButton::clicked, this,
            [&model = m_model, set](bool on) { (model.*set)(on); });
    SettingsRow* added = addRow(name, toggle);
    if (row)
        *row = added;
    return toggle;
}

void SettingsRootView::buildGeneral() {
    //: Section of the settings
    addSection(tr("General"));
    //: Setting
    const QString iconName = tr("Menu bar icon");
    m_icon = new MenuBarIconPicker(m_with.look, iconName, this);
    connect(m_icon, &MenuBarIconPicker::picked, &m_model, &SettingsModel::setMenuBarIconStyle);
    addRow(iconName, m_icon);

    //: Setting; a number
    const QString recentName = tr("Recent colors in menu");
    m_recentColors = new TextField(m_with.look, TextField::Content::Words, this);
    m_recentColors->setAccessibleName(recentName);
    m_recentColors->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_recentColors->setFixedWidth(numberWidth);
    connect(m_recentColors, &QLineEdit::editingFinished, this, [this] {
        // The focus leaves each field that the Tab key visits.
        if (!m_recentColors->isModified())
            return;
        m_recentColors->setModified(false);
        m_model.setRecentColorsLimitText(m_recentColors->text());
    });
    addRow(recentName, m_recentColors);

    //: Setting
    const QString soundName = tr("Copy sound");
    m_sound = new Picker(m_with.look, soundName, this);
    m_sound->addRow(SettingsModel::copySoundTitle(noCopySound), QString(noCopySound));
    m_sound->addSeparator();
    for (const QLatin1StringView sound : copySounds)
        m_sound->addRow(SettingsModel::copySoundTitle(sound), QString(sound));
    m_sound->setFixedWidth(pickerWidth);
    connect(m_sound, &Picker::chosen, this,
            [this] { m_model.chooseCopySound(m_sound->currentValue().toString()); });
    addRow(soundName, m_sound);

    //: Setting
    m_login = addToggle(tr("Start automatically on login"), &SettingsModel::setLaunchAtLogin);
    //: Setting
    m_updates =
        addToggle(tr("Automatically check for updates"), &SettingsModel::setAutoCheckUpdates);
}

void SettingsRootView::buildSync() {
    SettingsRow* row = nullptr;
    //: Setting
    m_sync = addToggle(tr("Sync via iCloud"), &SettingsModel::setICloudSyncEnabled, &row);
    //: Setting: what it does
    const QString subtitle = tr("Keep palettes and preferences in sync across your Macs.");
    m_sync->setAccessibleDescription(subtitle);
    row->addCaption(subtitle);
    m_syncStatus = new CloudSyncStatusLabel(m_with.look, row);
    row->addBelow(*m_syncStatus);
    m_syncAccount = new SyncAccountView(m_with.look, m_with.syncAccount, m_with.panels, row);
    row->addBelow(*m_syncAccount);
}

void SettingsRootView::buildFormat() {
    //: Section of the settings
    addSection(tr("Format"));
    //: Setting
    const QString formatName = tr("Format");
    m_format = new Picker(m_with.look, formatName, this);
    for (const ColorFormatGroup& group : formatGroups()) {
        m_format->addHeader(text(group.title));
        for (const ColorFormat format : group.formats)
            m_format->addRow(text(displayName(format)), text(rawValue(format)));
    }
    m_format->setFixedWidth(formatWidth);
    connect(m_format, &Picker::picked, this,
            [this] { m_model.setColorFormatRaw(m_format->currentValue().toString()); });
    SettingsRow* row = addRow(formatName, m_format);
    //: Setting: what the format is for
    row->addCaption(tr("Colors will be copied to the clipboard in this format"));

    //: Setting
    m_lowercase = addToggle(tr("Use lowercase for copied colors"), &SettingsModel::setUseLowercase,
                            &m_lowercaseRow);
    //: Setting
    m_prefix =
        addToggle(tr("Use # prefix for hex codes"), &SettingsModel::setUseHashPrefix, &m_prefixRow);

    //: Setting: how many digits behind the point
    const QString precisionName = tr("Decimal precision");
    m_precision = new SegmentedControl(
        m_with.look, precisionName,
        {QStringLiteral("0.00"), QStringLiteral("0.000"), QStringLiteral("0.0000")}, this);
    for (auto* segment : m_precision->findChildren<QAbstractButton*>())
        segment->setFont(textFont(TextStyle::Value));
    m_precision->setFixedWidth(formatWidth);
    connect(m_precision, &SegmentedControl::picked, this,
            [this](int index) { m_model.setDecimalPlaces(fewestDecimalPlaces + index); });
    m_precisionRow = addRow(precisionName, m_precision);
}

void SettingsRootView::buildHotkeys() {
    //: Section of the settings
    addSection(tr("Hotkeys"));
    const bool areOurs = m_with.shortcuts.isAvailable();
    const QList<ShortcutAction> shortcuts = shortcutActions();
    for (const ShortcutAction& shortcut : shortcuts)
        areOurs ? addRecorder(shortcut) : addDesktopKey(shortcut);
    //: Footer of the section of shortcuts
    m_hotkeyFooter = addFooter(tr("Activate from anywhere with the press of a button"));
    if (areOurs)
        return;
    connect(&m_with.desktopBindings, &DesktopBindings::didChange, this,
            &SettingsRootView::showDesktopKeys);
    showDesktopKeys();
}

void SettingsRootView::addRecorder(const ShortcutAction& shortcut) {
    auto* recorder = new RecorderCocoa(m_with.look, {m_with.shortcuts, m_with.alerts},
                                       shortcut.name, shortcut.title, this);
    recorder->setFixedWidth(pickerWidth);
    addRow(shortcut.title, recorder);
}

/// The desktop may begin and cease to have keys at any time.
void SettingsRootView::addDesktopKey(const ShortcutAction& shortcut) {
    auto* control = new QWidget(this);
    auto* field = new TriggerField(m_with.look, {m_with.desktopBindings, m_with.alerts},
                                   shortcut.name, shortcut.title, control);
    field->setFixedWidth(pickerWidth);
    m_triggerFields.append(field);
    m_commandButtons.append(makeCommandButton(shortcut));
    auto* line = new QHBoxLayout(control);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(field);
    line->addWidget(m_commandButtons.last());
    addRow(shortcut.title, control);
}

/// The user binds a key in the desktop's settings, and tells it there what it is to do.
QWidget* SettingsRootView::makeCommandButton(const ShortcutAction& shortcut) {
    //: Button that puts the command of an action on the clipboard
    auto* button = new TextButton(m_with.look, TextButton::Kind::Plain, tr("Copy Command"), this);
    //: The same button for screen readers; %1 is what the command does
    button->setAccessibleName(tr("Copy the Command of %1").arg(shortcut.title));
    const QString command = m_with.instance.commandFor(shortcut.action);
    button->setToolTip(command);
    connect(button, &QAbstractButton::clicked, this,
            [this, command] { m_with.pasteboard.setText(command); });
    return button;
}

void SettingsRootView::showDesktopKeys() {
    const DesktopShortcuts::State state = m_with.desktopBindings.state();
    const bool hasKeys = state != DesktopShortcuts::State::Unavailable;
    for (QWidget* field : std::as_const(m_triggerFields))
        field->setVisible(hasKeys);
    for (QWidget* button : std::as_const(m_commandButtons))
        button->setVisible(!hasKeys);
    if (!hasKeys)
        //: Footer of the section of shortcuts
        m_hotkeyFooter->setText(tr("This desktop keeps shortcuts to itself. In its keyboard "
                                   "settings, make a shortcut of your own and paste the command "
                                   "there."));
    else if (state != DesktopShortcuts::State::Bound)
        //: Footer of the section of shortcuts, where the desktop asks its user for the keys
        m_hotkeyFooter->setText(tr("This desktop hands out shortcuts itself: choose them in "
                                   "the window that it opens."));
    else if (m_with.desktopBindings.canChange())
        //: Footer of the section of shortcuts, where the desktop shows its settings of the keys
        m_hotkeyFooter->setText(
            tr("Activate from anywhere with the press of a button. The "
               "shortcuts are the desktop’s: click one, and it shows where to change "
               "them."));
    else
        //: Footer of the section of shortcuts, where only the desktop can change the keys
        m_hotkeyFooter->setText(
            tr("Activate from anywhere with the press of a button. The "
               "shortcuts are the desktop’s: change them in its settings, where it "
               "lists Dropshade."));
}

void SettingsRootView::showValues() {
    m_icon->setIconStyle(m_model.menuBarIconStyle());
    // What is being typed stays, though something else in the window changes meanwhile.
    if (!m_recentColors->isModified())
        m_recentColors->setText(QLocale().toString(m_model.recentColorsLimit()));
    m_sound->setCurrentValue(m_model.copySound());
    m_login->setChecked(m_model.launchAtLogin());
    m_updates->setChecked(m_model.autoCheckUpdates());
    m_sync->setChecked(m_model.iCloudSyncEnabled());
    m_syncAccount->setVisible(m_model.iCloudSyncEnabled());
    m_format->setCurrentValue(text(rawValue(m_model.colorFormat())));
    m_lowercase->setChecked(m_model.useLowercase());
    m_prefix->setChecked(m_model.useHashPrefix());
    m_precision->setCurrentIndex(m_model.decimalPlaces() - fewestDecimalPlaces);
    m_lowercaseRow->setVisible(m_model.showsHexRows());
    m_prefixRow->setVisible(m_model.showsHexRows());
    m_precisionRow->setVisible(m_model.showsPrecisionRow());
    showSyncStatus();
}

void SettingsRootView::showSyncStatus() {
    m_syncStatus->setStatus(m_model.syncStatus());
}

} // namespace dropshade
