<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>Version %1</source>
        <extracomment>About window; %1 is a version number</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A minimal color picker for your menu bar.
No accounts. No subscriptions. No telemetry.</source>
        <comment>App description</comment>
        <extracomment>App description</extracomment>
        <translation>Eine schlichte Farbpipette für die Leiste.
Kein Konto. Kein Abo. Keine Telemetrie.</translation>
    </message>
    <message>
        <source>You&apos;ve copied 1 color.</source>
        <comment>About lifetime singular</comment>
        <extracomment>About lifetime singular</extracomment>
        <translation>Bisher 1 Farbe kopiert.</translation>
    </message>
    <message>
        <source>You&apos;ve copied %d colors.</source>
        <comment>About lifetime plural</comment>
        <extracomment>About lifetime plural; %d is the number</extracomment>
        <translation>Bisher %d Farben kopiert.</translation>
    </message>
</context>
<context>
    <name>ContrastVerdicts</name>
    <message>
        <source>bold</source>
        <comment>Font weight</comment>
        <translation>fett</translation>
    </message>
    <message>
        <source>semibold</source>
        <comment>Font weight</comment>
        <translation>halbfett</translation>
    </message>
    <message>
        <source>medium</source>
        <comment>Font weight</comment>
        <translation>mittel</translation>
    </message>
    <message>
        <source>regular</source>
        <comment>Font weight</comment>
        <translation>normal</translation>
    </message>
    <message>
        <source>meets</source>
        <comment>WCAG verdict — pass</comment>
        <translation>erfüllt</translation>
    </message>
    <message>
        <source>fails</source>
        <comment>WCAG verdict — fail</comment>
        <translation>verfehlt</translation>
    </message>
    <message>
        <source>%1: %2 %3:1 %4 the %5:1 minimum.</source>
        <comment>WCAG line badge tooltip</comment>
        <extracomment>%1 a line&apos;s description, %2 AA or AAA, %3 the ratio, %4 meets or fails, %5 the minimum</extracomment>
        <translation>%1: %2, %3:1 %4 das Minimum von %5:1.</translation>
    </message>
    <message>
        <source>%1: Lc %2 meets the APCA Bronze minimum of Lc %3.</source>
        <comment>APCA tier pill tooltip — pass</comment>
        <extracomment>%1 a tier&apos;s name, %2 and %3 whole numbers</extracomment>
        <translation>%1: Lc %2 erfüllt das Minimum von Lc %3 für APCA Bronze.</translation>
    </message>
    <message>
        <source>%1: Lc %2 is below the APCA Bronze minimum of Lc %3.</source>
        <comment>APCA tier pill tooltip — fail</comment>
        <translation>%1: Lc %2 liegt unter dem Minimum von Lc %3 für APCA Bronze.</translation>
    </message>
    <message>
        <source>Normal text</source>
        <comment>WCAG normal-text sample</comment>
        <translation>Normaler Text</translation>
    </message>
    <message>
        <source>Normal text</source>
        <comment>WCAG normal-text role label</comment>
        <translation>Normaler Text</translation>
    </message>
    <message>
        <source>Large text</source>
        <comment>WCAG large-text sample</comment>
        <translation>Großer Text</translation>
    </message>
    <message>
        <source>Large text</source>
        <comment>WCAG large-text role label</comment>
        <translation>Großer Text</translation>
    </message>
    <message>
        <source>Normal text</source>
        <comment>APCA tier — fluent body reading (Lc 75 minimum)</comment>
        <translation>Normaler Text</translation>
    </message>
    <message>
        <source>Large text</source>
        <comment>APCA tier — large text and headings</comment>
        <translation>Großer Text</translation>
    </message>
    <message>
        <source>Graphics and UI</source>
        <comment>APCA tier — icons, dividers, borders, UI components</comment>
        <translation>Grafik und Oberfläche</translation>
    </message>
    <message>
        <source>Fix for APCA</source>
        <comment>Action menu section</comment>
        <translation>Für APCA anpassen</translation>
    </message>
    <message>
        <source>Normal text (Lc 75)</source>
        <comment>APCA fix item — normal/body text minimum</comment>
        <translation>Normaler Text (Lc 75)</translation>
    </message>
    <message>
        <source>Large text (Lc 45)</source>
        <comment>APCA fix item — large text minimum</comment>
        <translation>Großer Text (Lc 45)</translation>
    </message>
    <message>
        <source>Graphics and UI (Lc 30)</source>
        <comment>APCA fix item — graphics and UI minimum</comment>
        <translation>Grafik und Oberfläche (Lc 30)</translation>
    </message>
    <message>
        <source>Fix for Normal Text</source>
        <comment>Action menu section</comment>
        <translation>Für normalen Text anpassen</translation>
    </message>
    <message>
        <source>AA (4.5:1)</source>
        <comment>WCAG fix item</comment>
        <translation>AA (4,5:1)</translation>
    </message>
    <message>
        <source>AAA (7:1)</source>
        <comment>WCAG fix item</comment>
        <translation>AAA (7:1)</translation>
    </message>
    <message>
        <source>Fix for Large Text (≥ 18pt or ≥ 14pt bold)</source>
        <comment>Action menu section</comment>
        <translation>Für großen Text anpassen (ab 18 pt, fett ab 14 pt)</translation>
    </message>
    <message>
        <source>AA (3:1)</source>
        <comment>WCAG fix item</comment>
        <translation>AA (3:1)</translation>
    </message>
    <message>
        <source>AAA (4.5:1)</source>
        <comment>WCAG fix item</comment>
        <translation>AAA (4,5:1)</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>Cut</source>
        <comment>Edit menu item</comment>
        <extracomment>Edit menu item</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>Edit menu item</comment>
        <extracomment>Edit menu item</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>Edit menu item</comment>
        <extracomment>Edit menu item</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>Edit menu item</comment>
        <extracomment>Edit menu item</extracomment>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>GenericErrorText</name>
    <message>
        <source>The operation couldn&apos;t be completed. (%1)</source>
        <comment>An error without words of its own; %1 is its technical name</comment>
        <translation>Der Vorgang konnte nicht abgeschlossen werden. (%1)</translation>
    </message>
</context>
<context>
    <name>ImageZone</name>
    <message>
        <source>Remove image</source>
        <extracomment>Tooltip of the button that takes the image out again</extracomment>
        <translation>Bild entfernen</translation>
    </message>
</context>
<context>
    <name>ImportedNames</name>
    <message>
        <source>Imported Palette</source>
        <extracomment>The name of a palette read from a file that gives it none.</extracomment>
        <translation>Importierte Palette</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>The name of a row of colours that stood in no group of their file.</extracomment>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcuts</name>
    <message>
        <source>Record Shortcut</source>
        <comment>record_shortcut</comment>
        <extracomment>On an empty shortcut recorder</extracomment>
        <translation>Kürzel aufnehmen</translation>
    </message>
    <message>
        <source>Press Shortcut</source>
        <comment>press_shortcut</comment>
        <extracomment>On a shortcut recorder that listens</extracomment>
        <translation>Tasten drücken</translation>
    </message>
    <message>
        <source>That shortcut belongs to the menu item “%1”.</source>
        <comment>keyboard_shortcut_used_by_menu_item</comment>
        <extracomment>Alert of a shortcut recorder; %1 is the title of a menu item</extracomment>
        <translation>Dieses Tastenkürzel gehört zum Menüpunkt „%1“.</translation>
    </message>
    <message>
        <source>The desktop or another program uses that shortcut already.</source>
        <comment>keyboard_shortcut_used_by_system</comment>
        <extracomment>Alert of a shortcut recorder</extracomment>
        <translation>Der Desktop oder ein anderes Programm verwendet dieses Tastenkürzel schon.</translation>
    </message>
    <message>
        <source>Shortcuts of the desktop can be changed in its keyboard settings. Until then, this one may not reach Dropshade.</source>
        <comment>keyboard_shortcuts_can_be_changed</comment>
        <extracomment>Second line of the alert that the desktop or another program uses a shortcut</extracomment>
        <translation>Kürzel des Desktops lassen sich in dessen Tastatureinstellungen ändern. Bis dahin erreicht dieses Dropshade vielleicht nicht.</translation>
    </message>
    <message>
        <source>This desktop can’t give that shortcut to a program.</source>
        <comment>keyboard_shortcut_disallowed</comment>
        <extracomment>Alert of a shortcut recorder</extracomment>
        <translation>Dieser Desktop kann dieses Tastenkürzel keinem Programm geben.</translation>
    </message>
    <message>
        <source>Use It All the Same</source>
        <comment>force_use_shortcut</comment>
        <extracomment>Button of the alert that the desktop or another program uses a shortcut</extracomment>
        <translation>Trotzdem verwenden</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>ok</comment>
        <extracomment>Button of a shortcut recorder&apos;s alerts, which changes nothing</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Space</source>
        <extracomment>The space bar, where a key combination is shown</extracomment>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Quick Pick</source>
        <extracomment>Setting: the shortcut of a command</extracomment>
        <translation>Schnellauswahl</translation>
    </message>
    <message>
        <source>Color Picker</source>
        <extracomment>Setting: the shortcut of a window</extracomment>
        <translation>Farbwähler</translation>
    </message>
    <message>
        <source>Palettes</source>
        <extracomment>Setting: the shortcut of a window</extracomment>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Check Contrast</source>
        <extracomment>Setting: the shortcut of a window</extracomment>
        <translation>Kontrast prüfen</translation>
    </message>
</context>
<context>
    <name>PaletteDrop</name>
    <message>
        <source>Drop image to create a new palette</source>
        <extracomment>Shown while an image is dragged over the window</extracomment>
        <translation>Bild ablegen, um eine neue Palette anzulegen</translation>
    </message>
    <message>
        <source>Drop palette file to import</source>
        <extracomment>Shown while a palette file is dragged over the window</extracomment>
        <translation>Palettendatei ablegen, um sie zu importieren</translation>
    </message>
</context>
<context>
    <name>PaletteExportFormat</name>
    <message>
        <source>Adobe Swatch Exchange (.ase)</source>
        <extracomment>Export format</extracomment>
        <translation>Adobe Swatch Exchange (.ase)</translation>
    </message>
    <message>
        <source>Apple Color List (.clr)</source>
        <extracomment>Export format</extracomment>
        <translation>Apple-Farbliste (.clr)</translation>
    </message>
    <message>
        <source>JSON (.json)</source>
        <extracomment>Export format</extracomment>
        <translation>JSON (.json)</translation>
    </message>
    <message>
        <source>Plain Text (.txt)</source>
        <extracomment>Export format</extracomment>
        <translation>Reiner Text (.txt)</translation>
    </message>
    <message>
        <source>PNG Image (.png)</source>
        <extracomment>Export format</extracomment>
        <translation>PNG-Bild (.png)</translation>
    </message>
    <message>
        <source>PDF Document (.pdf)</source>
        <extracomment>Export format</extracomment>
        <translation>PDF-Dokument (.pdf)</translation>
    </message>
    <message>
        <source>HTML Document (.html)</source>
        <extracomment>Export format</extracomment>
        <translation>HTML-Dokument (.html)</translation>
    </message>
    <message>
        <source>CSS Stylesheet (.css)</source>
        <extracomment>Export format</extracomment>
        <translation>CSS-Stylesheet (.css)</translation>
    </message>
</context>
<context>
    <name>PaletteExporter</name>
    <message>
        <source>Export Palette</source>
        <comment>Title of the panel that asks where to write a palette</comment>
        <translation>Palette exportieren</translation>
    </message>
    <message>
        <source>Couldn&apos;t export palette</source>
        <comment>Export error title</comment>
        <translation>Palette konnte nicht exportiert werden</translation>
    </message>
    <message>
        <source>Palette</source>
        <comment>File name for a palette without a name</comment>
        <translation>Palette</translation>
    </message>
</context>
<context>
    <name>PaletteImporterError</name>
    <message>
        <source>The data isn&apos;t in the correct format.</source>
        <comment>A file of JSON that isn&apos;t a palette</comment>
        <translation>Die Daten haben nicht das richtige Format.</translation>
    </message>
    <message>
        <source>This file type (.%1) isn&apos;t supported. Try .ase, .clr, or .json.</source>
        <comment>Import error; %1 is a file extension</comment>
        <translation>Dieser Dateityp (.%1) wird nicht unterstützt. Möglich sind .ase, .clr und .json.</translation>
    </message>
    <message>
        <source>The file couldn&apos;t be read as a palette. %1</source>
        <comment>Import error; %1 is the reason</comment>
        <translation>Die Datei konnte nicht als Palette gelesen werden. %1</translation>
    </message>
</context>
<context>
    <name>PalettePoster</name>
    <message>
        <source>Palette</source>
        <comment>Title of a palette without a name</comment>
        <translation>Palette</translation>
    </message>
</context>
<context>
    <name>PalettePresets</name>
    <message>
        <source>Tailwind</source>
        <comment>Built-in palette name</comment>
        <translation>Tailwind</translation>
    </message>
    <message>
        <source>Harmony</source>
        <comment>Built-in palette name</comment>
        <translation>Harmony</translation>
    </message>
</context>
<context>
    <name>PaletteTextExporter</name>
    <message>
        <source>Palette</source>
        <comment>Title of a palette without a name</comment>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Untitled</source>
        <comment>Heading of a scale without a name</comment>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>PasswordKeeper</name>
    <message>
        <source>The password can&apos;t be kept.</source>
        <comment>Neither the desktop nor the disk takes it</comment>
        <translation>Das Passwort kann nicht aufbewahrt werden.</translation>
    </message>
</context>
<context>
    <name>PopoverButtons</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button of a popover or sheet</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QtFilePanels</name>
    <message>
        <source>All Files (*)</source>
        <comment>Filter of a file panel</comment>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>Quantizer</name>
    <message>
        <source>K-means</source>
        <extracomment>A way to find the colours of an image</extracomment>
        <translation>K-Means</translation>
    </message>
    <message>
        <source>Median cut</source>
        <extracomment>A way to find the colours of an image</extracomment>
        <translation>Median Cut</translation>
    </message>
    <message>
        <source>Octree</source>
        <extracomment>A way to find the colours of an image</extracomment>
        <translation>Octree</translation>
    </message>
    <message>
        <source>Frequency</source>
        <extracomment>An order of colours: the most frequent first</extracomment>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>Hue</source>
        <extracomment>An order of colours</extracomment>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Light to dark</source>
        <extracomment>An order of colours</extracomment>
        <translation>Von hell nach dunkel</translation>
    </message>
    <message>
        <source>Dark to light</source>
        <extracomment>An order of colours</extracomment>
        <translation>Von dunkel nach hell</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>None</source>
        <extracomment>Copy sound: silence</extracomment>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <extracomment>Copy sound that a fresh install has; %1 is its name</extracomment>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <extracomment>Sync settings: the connection is being tested</extracomment>
        <translation>Verbinde …</translation>
    </message>
    <message>
        <source>Connected in %1 ms</source>
        <extracomment>Sync settings: the test of the connection went well; %1 is a number of milliseconds</extracomment>
        <translation>Verbunden in %1 ms</translation>
    </message>
</context>
<context>
    <name>SyncStatusLabel</name>
    <message numerus="yes">
        <source>%n seconds ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Sekunde</numerusform>
            <numerusform>vor %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Minute</numerusform>
            <numerusform>vor %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Stunde</numerusform>
            <numerusform>vor %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>gestern</translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>last week</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>vorige Woche</translation>
    </message>
    <message numerus="yes">
        <source>%n weeks ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Woche</numerusform>
            <numerusform>vor %n Wochen</numerusform>
        </translation>
    </message>
    <message>
        <source>last month</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>vorigen Monat</translation>
    </message>
    <message numerus="yes">
        <source>%n months ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Monat</numerusform>
            <numerusform>vor %n Monaten</numerusform>
        </translation>
    </message>
    <message>
        <source>last year</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>voriges Jahr</translation>
    </message>
    <message numerus="yes">
        <source>%n years ago</source>
        <extracomment>A moment of the past, after &quot;Last synced: &quot;</extracomment>
        <translation>
            <numerusform>vor %n Jahr</numerusform>
            <numerusform>vor %n Jahren</numerusform>
        </translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>This moment, after &quot;Last synced: &quot;</extracomment>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>iCloud sync is approaching its size limit. Consider trimming unused palettes.</source>
        <extracomment>Sync status label</extracomment>
        <translation>Die Synchronisierung nähert sich ihrer Größengrenze. Unbenutzte Paletten zu löschen schafft Platz.</translation>
    </message>
    <message>
        <source>Syncing…</source>
        <extracomment>Sync status label</extracomment>
        <translation>Synchronisiere …</translation>
    </message>
    <message>
        <source>Last synced: %1</source>
        <extracomment>Sync status label; %1 is a moment such as &quot;5 minutes ago&quot;</extracomment>
        <translation>Zuletzt synchronisiert: %1</translation>
    </message>
</context>
<context>
    <name>UpdateDialogs</name>
    <message>
        <source>Dropshade %1 is available. You have %2.</source>
        <comment>Update available: %1 is the new version, %2 the installed one</comment>
        <translation>Dropshade %1 ist erschienen. Installiert ist %2.</translation>
    </message>
    <message>
        <source>A new version of Dropshade is available</source>
        <comment>Update available title</comment>
        <translation>Es gibt eine neue Version von Dropshade</translation>
    </message>
    <message>
        <source>Later</source>
        <comment>Update available button</comment>
        <translation>Später</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <comment>Update available button</comment>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <comment>Update available button</comment>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>You’re up to date</source>
        <comment>Update check: no newer version title</comment>
        <translation>Alles aktuell</translation>
    </message>
    <message>
        <source>Dropshade %1 is the newest version available.</source>
        <comment>Update check: no newer version; %1 is the installed one</comment>
        <translation>Dropshade %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>The update server could not be reached. Check the connection and try again.</source>
        <comment>Update check failed</comment>
        <translation>Der Update-Server war nicht erreichbar. Bitte die Verbindung prüfen und es noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The update server has no list of versions to give at the moment.</source>
        <comment>Update check failed</comment>
        <translation>Der Update-Server hat zurzeit keine Liste der Versionen.</translation>
    </message>
    <message>
        <source>The update server took too long to answer.</source>
        <comment>Update check failed</comment>
        <translation>Der Update-Server hat zu lange nicht geantwortet.</translation>
    </message>
    <message>
        <source>The update server pointed to an address that is not safe.</source>
        <comment>Update check failed</comment>
        <translation>Der Update-Server verwies auf eine unsichere Adresse.</translation>
    </message>
    <message>
        <source>The answer of the update server could not be understood.</source>
        <comment>Update check failed</comment>
        <translation>Die Antwort des Update-Servers war nicht zu verstehen.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <comment>Update check failed title</comment>
        <translation>Suche nach Updates nicht möglich</translation>
    </message>
    <message>
        <source>No browser could be opened</source>
        <comment>Update download page title</comment>
        <translation>Kein Browser ließ sich öffnen</translation>
    </message>
    <message>
        <source>The new version is at this address:
%1</source>
        <comment>Update download page; %1 is a web address</comment>
        <translation>Die neue Version liegt unter dieser Adresse:
%1</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>“%1” is not a file.</source>
        <comment>%1 is a file name</comment>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>“%1” could not be opened. %2</source>
        <comment>%1 is a file name, %2 the reason</comment>
        <translation>„%1“ konnte nicht geöffnet werden. %2</translation>
    </message>
    <message>
        <source>“%1” could not be read. %2</source>
        <comment>%1 is a file name, %2 the reason</comment>
        <translation>„%1“ konnte nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>“%1” is too large for a palette.</source>
        <comment>%1 is a file name</comment>
        <translation>„%1“ ist zu groß für eine Palette.</translation>
    </message>
    <message>
        <source>“%1” could not be saved. %2</source>
        <comment>%1 is a file name, %2 the reason</comment>
        <translation>„%1“ konnte nicht gesichert werden. %2</translation>
    </message>
</context>
<context>
    <name>dropshade::AboutWindowController</name>
    <message>
        <source>About</source>
        <comment>About window title</comment>
        <extracomment>About window title</extracomment>
        <translation>Über Dropshade</translation>
    </message>
    <message>
        <source>Visit Website</source>
        <comment>About window button</comment>
        <extracomment>About window button</extracomment>
        <translation>Website besuchen</translation>
    </message>
</context>
<context>
    <name>dropshade::AddScaleWidget</name>
    <message>
        <source>Add Scale</source>
        <extracomment>Button in a palette without scales</extracomment>
        <translation>Skala hinzufügen</translation>
    </message>
</context>
<context>
    <name>dropshade::AlertWindow</name>
    <message>
        <source>OK</source>
        <comment>Button that acknowledges an alert</comment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>dropshade::AlphaSlider</name>
    <message>
        <source>Opacity</source>
        <comment>Color selector</comment>
        <extracomment>Name of the alpha slider for screen readers</extracomment>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <comment>Opacity value</comment>
        <extracomment>Value of the alpha slider for screen readers; %1 is a whole number</extracomment>
        <translation>%1 Prozent</translation>
    </message>
</context>
<context>
    <name>dropshade::AppDelegate</name>
    <message>
        <source>Dropshade has no icon on this desktop</source>
        <extracomment>Title of a message on a desktop with no place for the program&apos;s icon</extracomment>
        <translation>Dropshade hat auf diesem Desktop kein Symbol</translation>
    </message>
    <message>
        <source>This desktop has no status area. Dropshade is running: start it once more to open its menu, or bind keys of your own to its actions in the settings of the desktop.</source>
        <extracomment>The message; &quot;it&quot; is the program</extracomment>
        <translation>Dieser Desktop hat keinen Statusbereich. Dropshade läuft: Ein weiterer Start öffnet sein Menü, und in den Einstellungen des Desktops lassen sich eigene Tasten mit seinen Aktionen verbinden.</translation>
    </message>
    <message>
        <source>New Palette from File</source>
        <comment>Title of the panel that asks for a palette file</comment>
        <translation>Neue Palette aus Datei</translation>
    </message>
    <message>
        <source>Palettes</source>
        <comment>Kind of file in a panel</comment>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Couldn&apos;t import palette</source>
        <comment>Import error title</comment>
        <translation>Palette konnte nicht importiert werden</translation>
    </message>
</context>
<context>
    <name>dropshade::BackgroundCheck</name>
    <message>
        <source>A part of Dropshade that sync needs is missing.</source>
        <extracomment>The part of the program that goes online isn&apos;t installed.</extracomment>
        <translation>Ein Teil von Dropshade, den die Synchronisierung braucht, fehlt.</translation>
    </message>
</context>
<context>
    <name>dropshade::ColorInputRow</name>
    <message>
        <source>Background</source>
        <comment>Field label</comment>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Foreground</source>
        <comment>Field label</comment>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Couldn&apos;t parse this color</source>
        <comment>Invalid color tooltip</comment>
        <translation>Das ist keine lesbare Farbe</translation>
    </message>
    <message>
        <source>Pick color from screen</source>
        <comment>Eyedropper tooltip</comment>
        <translation>Farbe vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>%1 — pick color from screen</source>
        <comment>Eyedropper name</comment>
        <extracomment>%1 is the field&apos;s label</extracomment>
        <translation>%1 – Farbe vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>Copy button tooltip</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>More actions</source>
        <comment>Action menu tooltip</comment>
        <translation>Weitere Aktionen</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <comment>Announcement</comment>
        <extracomment>What a screen reader says after a copy; %1 is the text that was copied</extracomment>
        <translation>%1 kopiert</translation>
    </message>
</context>
<context>
    <name>dropshade::ColorPickerWindow</name>
    <message>
        <source>Color Picker</source>
        <comment>Color picker window title</comment>
        <translation>Farbwähler</translation>
    </message>
    <message>
        <source>Paste or type a color</source>
        <comment>Convert input placeholder</comment>
        <translation>Farbe einfügen oder eingeben</translation>
    </message>
    <message>
        <source>Color</source>
        <comment>Convert input name</comment>
        <extracomment>Name of the field for screen readers</extracomment>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Clear</source>
        <comment>Clear input tooltip</comment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Pick color from screen</source>
        <comment>Eyedropper tooltip</comment>
        <translation>Farbe vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Copy color</source>
        <comment>Copy button tooltip</comment>
        <translation>Farbe kopieren</translation>
    </message>
    <message>
        <source>Close dialog after copying</source>
        <comment>Close-on-copy tooltip</comment>
        <translation>Fenster nach dem Kopieren schließen</translation>
    </message>
</context>
<context>
    <name>dropshade::ColorPickerWindowController</name>
    <message>
        <source>Copied %1</source>
        <comment>Announcement</comment>
        <extracomment>What a screen reader says after a copy; %1 is the text that was copied</extracomment>
        <translation>%1 kopiert</translation>
    </message>
</context>
<context>
    <name>dropshade::ContrastActionMenu</name>
    <message>
        <source>Copy As</source>
        <comment>Action menu section</comment>
        <translation>Kopieren als</translation>
    </message>
    <message>
        <source>Paste from Clipboard</source>
        <comment>Action menu section</comment>
        <translation>Aus Zwischenablage einfügen</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <comment>Announcement</comment>
        <extracomment>What a screen reader says after a copy; %1 is the text that was copied</extracomment>
        <translation>%1 kopiert</translation>
    </message>
</context>
<context>
    <name>dropshade::ContrastWindow</name>
    <message>
        <source>Check Contrast</source>
        <comment>Contrast window title</comment>
        <translation>Kontrast prüfen</translation>
    </message>
    <message>
        <source>Contrast algorithm</source>
        <comment>Algorithm picker</comment>
        <extracomment>Name of the choice between WCAG 2 and APCA for screen readers</extracomment>
        <translation>Kontrastverfahren</translation>
    </message>
    <message>
        <source>Choose how contrast is measured. WCAG 2 reports a luminance ratio; APCA reports perceptual lightness contrast (Lc).</source>
        <comment>Algorithm picker tooltip</comment>
        <translation>Legt fest, wie der Kontrast gemessen wird. WCAG 2 nennt ein Verhältnis der Leuchtdichten, APCA den empfundenen Helligkeitskontrast (Lc).</translation>
    </message>
    <message>
        <source>Swap Colors</source>
        <comment>Swap button</comment>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Swap background and foreground</source>
        <comment>Swap tooltip</comment>
        <translation>Hintergrund und Vordergrund tauschen</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>Close button</comment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>RATIO</source>
        <comment>Ratio label</comment>
        <translation>VERHÄLTNIS</translation>
    </message>
    <message>
        <source>APCA</source>
        <comment>APCA label</comment>
        <translation>APCA</translation>
    </message>
    <message>
        <source>APCA Lc — perceptual lightness contrast (APCA-W3). Sign indicates polarity (positive = dark text on light background).</source>
        <comment>APCA help</comment>
        <translation>APCA Lc – empfundener Helligkeitskontrast (APCA-W3). Das Vorzeichen nennt die Polarität (positiv = dunkler Text auf hellem Grund).</translation>
    </message>
    <message>
        <source>WCAG 2</source>
        <comment>Contrast algorithm</comment>
        <extracomment>A way to measure contrast</extracomment>
        <translation>WCAG 2</translation>
    </message>
    <message>
        <source>APCA</source>
        <comment>Contrast algorithm</comment>
        <extracomment>A way to measure contrast</extracomment>
        <translation>APCA</translation>
    </message>
</context>
<context>
    <name>dropshade::EmptyState</name>
    <message>
        <source>Pick a color to see every format</source>
        <comment>Empty state heading</comment>
        <translation>Eine Farbe aufnehmen zeigt jedes Format</translation>
    </message>
    <message>
        <source>Then copy the format you need and carry on!</source>
        <comment>Empty state subtitle</comment>
        <translation>Dann das passende Format kopieren und weiter!</translation>
    </message>
</context>
<context>
    <name>dropshade::EtcdClient</name>
    <message>
        <source>The server doesn&apos;t answer as etcd does.</source>
        <extracomment>Something else than etcd, a program that keeps shared values, is at the address.</extracomment>
        <translation>Der Server antwortet nicht wie etcd.</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t the address of a server. One looks like https://host:2379.</source>
        <extracomment>%1 is what the user entered.</extracomment>
        <translation>„%1“ ist keine Serveradresse. Eine solche sieht aus wie https://host:2379.</translation>
    </message>
    <message>
        <source>The server&apos;s address must begin with https, or others could read the password on its way.</source>
        <extracomment>Shown in the settings of sync, for an address that begins with http.</extracomment>
        <translation>Die Serveradresse muss mit https beginnen, sonst könnten andere das Passwort unterwegs lesen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate isn&apos;t trusted: %1</source>
        <extracomment>%1 is the reason.</extracomment>
        <translation>Dem Zertifikat des Servers wird nicht vertraut: %1</translation>
    </message>
    <message>
        <source>The server doesn&apos;t answer.</source>
        <extracomment>Nothing came from the server of sync in time.</extracomment>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>The server can&apos;t be reached: %1</source>
        <extracomment>%1 is the reason.</extracomment>
        <translation>Der Server ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>The value is too large for the server.</source>
        <extracomment>The server of sync has a limit for each value.</extracomment>
        <translation>Der Wert ist zu groß für den Server.</translation>
    </message>
    <message>
        <source>The server has no room left.</source>
        <extracomment>The server of sync has a limit for all values.</extracomment>
        <translation>Auf dem Server ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The server asks for a user name and a password.</source>
        <extracomment>The account of sync has no user, or no password.</extracomment>
        <translation>Der Server verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>The server doesn&apos;t accept this user name and password.</source>
        <extracomment>Of the account of sync.</extracomment>
        <translation>Der Server nimmt Benutzername und Passwort nicht an.</translation>
    </message>
    <message>
        <source>This user may not read or write these keys.</source>
        <extracomment>Of the account of sync; the keys are those that its values lie under.</extracomment>
        <translation>Dieser Benutzer darf diese Schlüssel nicht lesen oder schreiben.</translation>
    </message>
    <message>
        <source>The server can&apos;t serve: %1</source>
        <extracomment>%1 is the reason as the server gives it.</extracomment>
        <translation>Der Server kann nicht antworten: %1</translation>
    </message>
    <message>
        <source>The server has ended the connection.</source>
        <extracomment>The server of sync; another connection is made.</extracomment>
        <translation>Der Server hat die Verbindung beendet.</translation>
    </message>
</context>
<context>
    <name>dropshade::FolderWorker</name>
    <message>
        <source>The sync folder %1 can&apos;t be made: %2</source>
        <extracomment>%1 is a path, %2 the reason as the system gives it.</extracomment>
        <translation>Der Sync-Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>The sync folder %1 can&apos;t be written: %2</source>
        <extracomment>%1 is a path, %2 the reason as the system gives it.</extracomment>
        <translation>In den Sync-Ordner %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The sync folder %1 is missing.</source>
        <extracomment>%1 is a path.</extracomment>
        <translation>Der Sync-Ordner %1 fehlt.</translation>
    </message>
</context>
<context>
    <name>dropshade::FormatList</name>
    <message>
        <source>Couldn&apos;t parse this color. Try a hex (#ff0080), rgb(), hsl(), or a CSS color name.</source>
        <comment>Convert parse error</comment>
        <translation>Das ist keine lesbare Farbe. Möglich sind Hex (#ff0080), rgb(), hsl() oder ein CSS-Farbname.</translation>
    </message>
</context>
<context>
    <name>dropshade::FormatRow</name>
    <message>
        <source>Copy as %1</source>
        <comment>Convert row tooltip</comment>
        <extracomment>%1 is the name of a format, such as &quot;CSS RGB&quot;</extracomment>
        <translation>Als %1 kopieren</translation>
    </message>
</context>
<context>
    <name>dropshade::HueSlider</name>
    <message>
        <source>Hue</source>
        <comment>Color selector</comment>
        <extracomment>Name of the hue slider for screen readers</extracomment>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <comment>Hue value</comment>
        <extracomment>Value of the hue slider for screen readers; %1 is a whole number of degrees</extracomment>
        <translation>%1 Grad</translation>
    </message>
</context>
<context>
    <name>dropshade::ImageZone</name>
    <message>
        <source>Drop an image, paste, or click to browse</source>
        <extracomment>In the zone that takes an image</extracomment>
        <translation>Bild ablegen, einfügen oder zum Auswählen klicken</translation>
    </message>
    <message>
        <source>PNG, JPEG, HEIC, TIFF, GIF, BMP, or WebP</source>
        <extracomment>The kinds of images that are taken</extracomment>
        <translation>PNG, JPEG, HEIC, TIFF, GIF, BMP oder WebP</translation>
    </message>
</context>
<context>
    <name>dropshade::InlineColorWell</name>
    <message>
        <source>Edit color</source>
        <comment>Color picker tooltip</comment>
        <extracomment>Name of the popover that edits a color, for screen readers</extracomment>
        <translation>Farbe bearbeiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>Color picker cancel</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>Color picker confirm</comment>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>dropshade::ListActions</name>
    <message>
        <source>Control-click for options</source>
        <extracomment>Status bar hint when hovering a palette or scale label</extracomment>
        <translation>Rechtsklick für Optionen</translation>
    </message>
    <message>
        <source>Palette options</source>
        <extracomment>Tooltip of a button in the header of a palette</extracomment>
        <translation>Optionen der Palette</translation>
    </message>
    <message>
        <source>Add color</source>
        <extracomment>Tooltip of the button behind the swatches of a scale</extracomment>
        <translation>Farbe hinzufügen</translation>
    </message>
</context>
<context>
    <name>dropshade::MenuBarIconPicker</name>
    <message>
        <source>Swatch</source>
        <comment>Menu bar icon style</comment>
        <extracomment>Menu bar icon style</extracomment>
        <translation>Farbfeld</translation>
    </message>
    <message>
        <source>Palette</source>
        <comment>Menu bar icon style</comment>
        <extracomment>Menu bar icon style</extracomment>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Default</source>
        <comment>Menu bar icon style</comment>
        <extracomment>Menu bar icon style</extracomment>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>dropshade::NamePopover</name>
    <message>
        <source>Done</source>
        <extracomment>Default button of a popover</extracomment>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>dropshade::NewPaletteFromImageModel</name>
    <message>
        <source>Unsupported image format.</source>
        <extracomment>Shown where a file that was chosen, pasted or dropped is not an image.</extracomment>
        <translation>Dieses Bildformat wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>No image on the clipboard.</source>
        <extracomment>Shown after a paste.</extracomment>
        <translation>Kein Bild in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>The name of the one scale of a palette that was made from an image</extracomment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Untitled Palette</source>
        <extracomment>The name of a palette that was made from an image and given no other</extracomment>
        <translation>Palette ohne Titel</translation>
    </message>
    <message>
        <source>Couldn&apos;t read this image.</source>
        <extracomment>Shown where an image is one, but has no pixels to take colours from.</extracomment>
        <translation>Dieses Bild konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>dropshade::NewPaletteFromImageView</name>
    <message>
        <source>New Palette from Image</source>
        <extracomment>Title of the sheet that makes a palette from an image</extracomment>
        <translation>Neue Palette aus Bild</translation>
    </message>
    <message>
        <source>Algorithm</source>
        <extracomment>The way in which the colours are found</extracomment>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>Sort by</source>
        <extracomment>The order of the colours</extracomment>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Colors</source>
        <extracomment>How many colours the palette will have</extracomment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Working</source>
        <extracomment>The sign that colours are being worked out, to a screen reader</extracomment>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>To a screen reader: a colour&apos;s text is on the clipboard</extracomment>
        <translation>%1 kopiert</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>The name of the palette to be</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Closes the sheet without a palette</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create Palette</source>
        <extracomment>Makes the palette and closes the sheet</extracomment>
        <translation>Palette erstellen</translation>
    </message>
    <message>
        <source>Image %1</source>
        <extracomment>The image that the palette comes from, to a screen reader; %1 is its file&apos;s name</extracomment>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>Choose an Image</source>
        <extracomment>Title of the panel that asks for an image</extracomment>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images</source>
        <extracomment>Kind of file in a panel</extracomment>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>dropshade::PaletteList</name>
    <message>
        <source>favorite</source>
        <extracomment>For screen readers, behind the name of a color</extracomment>
        <translation>Favorit</translation>
    </message>
</context>
<context>
    <name>dropshade::PaletteMenus</name>
    <message>
        <source>Create from scratch</source>
        <extracomment>Menu item that creates a palette with a few swatches</extracomment>
        <translation>Leer beginnen</translation>
    </message>
    <message>
        <source>Create from image…</source>
        <extracomment>Menu item that creates a palette</extracomment>
        <translation>Aus Bild erstellen …</translation>
    </message>
    <message>
        <source>Create from file… (.ase, .clr, .json)</source>
        <extracomment>Menu item that creates a palette</extracomment>
        <translation>Aus Datei erstellen … (.ase, .clr, .json)</translation>
    </message>
    <message>
        <source>Create from preset…</source>
        <extracomment>Menu item that creates a palette</extracomment>
        <translation>Aus Vorlage erstellen …</translation>
    </message>
    <message>
        <source>Rename Palette</source>
        <extracomment>Menu item</extracomment>
        <translation>Palette umbenennen</translation>
    </message>
    <message>
        <source>Duplicate Palette</source>
        <extracomment>Menu item</extracomment>
        <translation>Palette duplizieren</translation>
    </message>
    <message>
        <source>Export Palette</source>
        <extracomment>Title of a submenu with file formats</extracomment>
        <translation>Palette exportieren</translation>
    </message>
    <message>
        <source>Add Scale</source>
        <extracomment>Menu item</extracomment>
        <translation>Skala hinzufügen</translation>
    </message>
    <message>
        <source>Delete Palette</source>
        <extracomment>Menu item</extracomment>
        <translation>Palette löschen</translation>
    </message>
    <message>
        <source>Rename Scale</source>
        <extracomment>Menu item</extracomment>
        <translation>Skala umbenennen</translation>
    </message>
    <message>
        <source>Duplicate Scale</source>
        <extracomment>Menu item</extracomment>
        <translation>Skala duplizieren</translation>
    </message>
    <message>
        <source>Sort Light to Dark</source>
        <extracomment>Menu item</extracomment>
        <translation>Von hell nach dunkel sortieren</translation>
    </message>
    <message>
        <source>Sort Dark to Light</source>
        <extracomment>Menu item</extracomment>
        <translation>Von dunkel nach hell sortieren</translation>
    </message>
    <message>
        <source>Delete Scale</source>
        <extracomment>Menu item</extracomment>
        <translation>Skala löschen</translation>
    </message>
    <message>
        <source>Remove from Favorites</source>
        <extracomment>Menu item of a swatch that is a favorite</extracomment>
        <translation>Aus Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <extracomment>Menu item of a swatch that is no favorite</extracomment>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Edit Color</source>
        <extracomment>Menu item</extracomment>
        <translation>Farbe bearbeiten</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Menu item</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy As</source>
        <extracomment>Title of a submenu with color formats</extracomment>
        <translation>Kopieren als</translation>
    </message>
    <message>
        <source>Delete Color</source>
        <extracomment>Menu item</extracomment>
        <translation>Farbe löschen</translation>
    </message>
</context>
<context>
    <name>dropshade::PaletteMoves</name>
    <message>
        <source>%1 moved to %2 of %3</source>
        <extracomment>For screen readers: %1 is a name, %2 its new place, %3 how many there are</extracomment>
        <translation>%1 auf Platz %2 von %3 verschoben</translation>
    </message>
    <message>
        <source>%1 moved to %2, place %3</source>
        <extracomment>For screen readers: %1 is a color, %2 the scale that it is in now, %3 its place there</extracomment>
        <translation>%1 nach %2 auf Platz %3 verschoben</translation>
    </message>
</context>
<context>
    <name>dropshade::PalettesEmptyState</name>
    <message>
        <source>No palettes yet</source>
        <extracomment>Title in the palettes window without palettes</extracomment>
        <translation>Noch keine Paletten</translation>
    </message>
    <message>
        <source>Organize your colors into palettes for quick access. Start from a built-in preset or create a blank palette to fill in yourself.</source>
        <extracomment>Text in the palettes window without palettes</extracomment>
        <translation>Paletten ordnen die Farben und halten sie griffbereit. Den Anfang macht eine eingebaute Vorlage oder eine leere Palette zum Selbstfüllen.</translation>
    </message>
    <message>
        <source>Create palette from preset…</source>
        <extracomment>Button in the palettes window without palettes</extracomment>
        <translation>Palette aus Vorlage erstellen …</translation>
    </message>
    <message>
        <source>Create palette from scratch</source>
        <extracomment>Button in the palettes window without palettes</extracomment>
        <translation>Leere Palette erstellen</translation>
    </message>
    <message>
        <source>Tip: Press %1 from anywhere to open Palettes.</source>
        <extracomment>%1 is a keyboard shortcut</extracomment>
        <translation>Tipp: %1 öffnet von überall die Paletten.</translation>
    </message>
    <message>
        <source>Tip: Set a hotkey in Settings to open Palettes from anywhere.</source>
        <extracomment>Where no keyboard shortcut is set</extracomment>
        <translation>Tipp: Ein Tastenkürzel aus den Einstellungen öffnet von überall die Paletten.</translation>
    </message>
</context>
<context>
    <name>dropshade::PalettesModel</name>
    <message>
        <source>New Palette</source>
        <extracomment>Name of a palette that the user has just created</extracomment>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>Name of a scale that the user has just created</extracomment>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <extracomment>Title of an alert; %1 is a palette&apos;s or a scale&apos;s name</extracomment>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>This palette will be permanently removed.</source>
        <extracomment>Text of the alert before a palette is deleted</extracomment>
        <translation>Diese Palette wird endgültig gelöscht.</translation>
    </message>
    <message>
        <source>This scale and its colors will be permanently removed.</source>
        <extracomment>Text of the alert before a scale is deleted</extracomment>
        <translation>Diese Skala und ihre Farben werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Delete this color?</source>
        <extracomment>Title of the alert before a color is deleted</extracomment>
        <translation>Diese Farbe löschen?</translation>
    </message>
    <message>
        <source>This swatch will be permanently removed.</source>
        <extracomment>Text of the alert before a color is deleted</extracomment>
        <translation>Dieses Farbfeld wird endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Palette Name</source>
        <extracomment>Title of the popover that renames a palette</extracomment>
        <translation>Name der Palette</translation>
    </message>
    <message>
        <source>Scale Name</source>
        <extracomment>Title of the popover that renames a scale</extracomment>
        <translation>Name der Skala</translation>
    </message>
</context>
<context>
    <name>dropshade::PalettesTopBar</name>
    <message>
        <source>Swatch size</source>
        <extracomment>Tooltip of a slider in the palettes window</extracomment>
        <translation>Größe der Farbfelder</translation>
    </message>
    <message>
        <source>Close dialog after copying</source>
        <extracomment>Tooltip of a switch in the palettes window</extracomment>
        <translation>Fenster nach dem Kopieren schließen</translation>
    </message>
    <message>
        <source>New Palette</source>
        <extracomment>Button in the palettes window</extracomment>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>Adjust the size of the color swatches.</source>
        <extracomment>Status bar hint while the pointer is over the slider</extracomment>
        <translation>Ändert die Größe der Farbfelder.</translation>
    </message>
</context>
<context>
    <name>dropshade::PalettesWindow</name>
    <message>
        <source>Palettes</source>
        <extracomment>Title of a window
----------
Name of the list for screen readers</extracomment>
        <translation>Paletten</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>Button of an alert</extracomment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button of an alert</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>dropshade::PresetPickerSheet</name>
    <message>
        <source>Name</source>
        <extracomment>Label of the field with the new palette&apos;s name</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>New palette</source>
        <extracomment>Placeholder of the field with the new palette&apos;s name</extracomment>
        <translation>Neue Palette</translation>
    </message>
    <message>
        <source>Preset</source>
        <extracomment>Label of the list of presets</extracomment>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Add</source>
        <extracomment>Default button of the sheet with the presets</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>New palette from a preset</source>
        <extracomment>Name of a sheet, for screen readers</extracomment>
        <translation>Neue Palette aus einer Vorlage</translation>
    </message>
</context>
<context>
    <name>dropshade::PreviewStrip</name>
    <message>
        <source>Preview</source>
        <extracomment>Name of the colours of the new palette for screen readers</extracomment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Load an image to generate a palette.</source>
        <extracomment>Stands in place of the colours while there are none</extracomment>
        <translation>Ein geladenes Bild ergibt hier eine Palette.</translation>
    </message>
</context>
<context>
    <name>dropshade::PreviewSwatch</name>
    <message>
        <source>Color preview</source>
        <comment>Convert window</comment>
        <extracomment>Name of the large swatch of the convert window for screen readers</extracomment>
        <translation>Farbvorschau</translation>
    </message>
</context>
<context>
    <name>dropshade::RecorderCocoa</name>
    <message>
        <source>Clear the Shortcut of %1</source>
        <extracomment>Button of a shortcut recorder; %1 is what the shortcut is for</extracomment>
        <translation>Tastenkürzel für %1 entfernen</translation>
    </message>
</context>
<context>
    <name>dropshade::ReplicatedKeyValueStore</name>
    <message>
        <source>The disk is full or can&apos;t be written.</source>
        <extracomment>The changes of this machine that wait to be sent can&apos;t be kept on the disk.</extracomment>
        <translation>Der Datenträger ist voll oder nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Something is too large to be synced and stays on this machine.</source>
        <extracomment>The folder or server of sync takes only values up to a size; most are palettes.</extracomment>
        <translation>Etwas ist zu groß, um synchronisiert zu werden, und bleibt auf diesem Rechner.</translation>
    </message>
</context>
<context>
    <name>dropshade::Saturation</name>
    <message>
        <source>Saturation and brightness</source>
        <comment>Color selector</comment>
        <extracomment>Name of the square that selects saturation and brightness, for screen readers</extracomment>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>saturation %1 percent, brightness %2 percent</source>
        <comment>Saturation square value</comment>
        <extracomment>Value of the square for screen readers; %1 and %2 are whole numbers</extracomment>
        <translation>Sättigung %1 Prozent, Helligkeit %2 Prozent</translation>
    </message>
</context>
<context>
    <name>dropshade::SettingsRootView</name>
    <message>
        <source>General</source>
        <extracomment>Section of the settings</extracomment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Menu bar icon</source>
        <extracomment>Setting</extracomment>
        <translation>Symbol in der Leiste</translation>
    </message>
    <message>
        <source>Recent colors in menu</source>
        <extracomment>Setting; a number</extracomment>
        <translation>Letzte Farben im Menü</translation>
    </message>
    <message>
        <source>Copy sound</source>
        <extracomment>Setting</extracomment>
        <translation>Ton beim Kopieren</translation>
    </message>
    <message>
        <source>Start automatically on login</source>
        <extracomment>Setting</extracomment>
        <translation>Beim Anmelden automatisch starten</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <extracomment>Setting</extracomment>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Sync via iCloud</source>
        <extracomment>Setting</extracomment>
        <translation>Mit anderen Rechnern synchronisieren</translation>
    </message>
    <message>
        <source>Keep palettes and preferences in sync across your Macs.</source>
        <extracomment>Setting: what it does</extracomment>
        <translation>Hält Paletten und Einstellungen auf allen Rechnern gleich.</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Section of the settings
----------
Setting</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Colors will be copied to the clipboard in this format</source>
        <extracomment>Setting: what the format is for</extracomment>
        <translation>Farben kommen in diesem Format in die Zwischenablage</translation>
    </message>
    <message>
        <source>Use lowercase for copied colors</source>
        <extracomment>Setting</extracomment>
        <translation>Kopierte Farben in Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Use # prefix for hex codes</source>
        <extracomment>Setting</extracomment>
        <translation>Hex-Codes mit # davor</translation>
    </message>
    <message>
        <source>Decimal precision</source>
        <extracomment>Setting: how many digits behind the point</extracomment>
        <translation>Nachkommastellen</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <extracomment>Section of the settings</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Activate from anywhere with the press of a button</source>
        <extracomment>Footer of the section of shortcuts</extracomment>
        <translation>Von überall mit einem Tastendruck</translation>
    </message>
    <message>
        <source>This desktop keeps shortcuts to itself. In its keyboard settings, make a shortcut of your own and paste the command there.</source>
        <extracomment>Footer of the section of shortcuts</extracomment>
        <translation>Dieser Desktop behält Tastenkürzel für sich. In seinen Tastatureinstellungen lässt sich ein eigenes Kürzel anlegen und der Befehl dort einfügen.</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <extracomment>Button that puts the command of an action on the clipboard</extracomment>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Copy the Command of %1</source>
        <extracomment>The same button for screen readers; %1 is what the command does</extracomment>
        <translation>Befehl für %1 kopieren</translation>
    </message>
    <message>
        <source>This desktop hands out shortcuts itself: choose them in the window that it opens.</source>
        <extracomment>Footer of the section of shortcuts, where the desktop asks its user for the keys</extracomment>
        <translation>Dieser Desktop vergibt Tastenkürzel selbst: Sie lassen sich in dem Fenster wählen, das er öffnet.</translation>
    </message>
    <message>
        <source>Activate from anywhere with the press of a button. The shortcuts are the desktop’s: click one, and it shows where to change them.</source>
        <extracomment>Footer of the section of shortcuts, where the desktop shows its settings of the keys</extracomment>
        <translation>Von überall mit einem Tastendruck. Die Kürzel gehören dem Desktop: Ein Klick auf eines, und er zeigt, wo sie sich ändern lassen.</translation>
    </message>
    <message>
        <source>Activate from anywhere with the press of a button. The shortcuts are the desktop’s: change them in its settings, where it lists Dropshade.</source>
        <extracomment>Footer of the section of shortcuts, where only the desktop can change the keys</extracomment>
        <translation>Von überall mit einem Tastendruck. Die Kürzel gehören dem Desktop: Sie lassen sich in seinen Einstellungen ändern, wo er Dropshade aufführt.</translation>
    </message>
</context>
<context>
    <name>dropshade::SettingsViewController</name>
    <message>
        <source>Dropshade Settings</source>
        <extracomment>Title of the settings window</extracomment>
        <translation>Dropshade-Einstellungen</translation>
    </message>
</context>
<context>
    <name>dropshade::StatusMenu</name>
    <message>
        <source>Control-click for quick pick</source>
        <extracomment>Menu bar hint</extracomment>
        <translation>Strg-Klick für Schnellauswahl</translation>
    </message>
    <message>
        <source>Quick Pick</source>
        <extracomment>Menu item to open screen color sampler</extracomment>
        <translation>Schnellauswahl</translation>
    </message>
    <message>
        <source>Color Picker…</source>
        <extracomment>Menu item to open color picker window</extracomment>
        <translation>Farbwähler …</translation>
    </message>
    <message>
        <source>Palettes…</source>
        <extracomment>Menu item to open palettes window</extracomment>
        <translation>Paletten …</translation>
    </message>
    <message>
        <source>Check Contrast…</source>
        <extracomment>Menu item to open contrast checker</extracomment>
        <translation>Kontrast prüfen …</translation>
    </message>
    <message>
        <source>New Palette from Image…</source>
        <extracomment>Menu item to create palette from image</extracomment>
        <translation>Neue Palette aus Bild …</translation>
    </message>
    <message>
        <source>New Palette from File… (.ase, .clr, .json)</source>
        <extracomment>Menu item to create palette from file</extracomment>
        <translation>Neue Palette aus Datei … (.ase, .clr, .json)</translation>
    </message>
    <message>
        <source>New Palette from Preset…</source>
        <extracomment>Menu item to create palette from a built-in preset</extracomment>
        <translation>Neue Palette aus Vorlage …</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>Menu item to open settings</extracomment>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>About…</source>
        <extracomment>Menu item to open about window</extracomment>
        <translation>Über Dropshade …</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>Menu item to check for app updates</extracomment>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Menu item to quit app</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Favorites</source>
        <extracomment>Submenu title</extracomment>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Recent Colors</source>
        <extracomment>Submenu title</extracomment>
        <translation>Letzte Farben</translation>
    </message>
    <message>
        <source>Clear Recent Colors</source>
        <extracomment>Menu item to clear color history</extracomment>
        <translation>Letzte Farben löschen</translation>
    </message>
</context>
<context>
    <name>dropshade::SwatchPopover</name>
    <message>
        <source>Add</source>
        <extracomment>Default button of the popover that adds a color</extracomment>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Default button of the popover that edits a color</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Value</source>
        <extracomment>Label of the field with a color&apos;s value</extracomment>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Couldn&apos;t parse this color</source>
        <extracomment>Tooltip of the sign in a field whose text is no color</extracomment>
        <translation>Das ist keine lesbare Farbe</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Label of the field with a color&apos;s name</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>e.g. blue-500</source>
        <extracomment>Placeholder of the field with a color&apos;s name</extracomment>
        <translation>z. B. blau-500</translation>
    </message>
    <message>
        <source>Add color</source>
        <extracomment>Name of the popover that adds a color, for screen readers</extracomment>
        <translation>Farbe hinzufügen</translation>
    </message>
    <message>
        <source>Edit color</source>
        <extracomment>Name of the popover that edits a color, for screen readers</extracomment>
        <translation>Farbe bearbeiten</translation>
    </message>
</context>
<context>
    <name>dropshade::SyncAccountView</name>
    <message>
        <source>Keep data in</source>
        <extracomment>Sync settings: the choice of where the data is kept</extracomment>
        <translation>Daten liegen in</translation>
    </message>
    <message>
        <source>A folder</source>
        <extracomment>Sync settings: where the data is kept</extracomment>
        <translation>Einem Ordner</translation>
    </message>
    <message>
        <source>An etcd server</source>
        <extracomment>Sync settings: where the data is kept</extracomment>
        <translation>Einem etcd-Server</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Sync settings: the path of a folder</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>On this computer only</source>
        <extracomment>Sync settings: what an empty path of a folder stands for</extracomment>
        <translation>Nur auf diesem Rechner</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Sync settings: button that opens a panel</extracomment>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <extracomment>Sync settings: a button&apos;s name for screen readers</extracomment>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a Folder for Sync</source>
        <extracomment>Title of the panel that asks for a folder</extracomment>
        <translation>Ordner für die Synchronisierung wählen</translation>
    </message>
    <message>
        <source>Address</source>
        <extracomment>Sync settings: the address of a server</extracomment>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>Sync settings: the user of a server</extracomment>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <extracomment>Sync settings: the password of a server</extracomment>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>CA certificate</source>
        <extracomment>Sync settings: the path of a certificate that a server is trusted by</extracomment>
        <translation>CA-Zertifikat</translation>
    </message>
    <message>
        <source>The system’s</source>
        <extracomment>Sync settings: what an empty path of a certificate stands for</extracomment>
        <translation>Die des Systems</translation>
    </message>
    <message>
        <source>Choose CA Certificate</source>
        <extracomment>Sync settings: a button&apos;s name for screen readers</extracomment>
        <translation>CA-Zertifikat wählen</translation>
    </message>
    <message>
        <source>Choose a CA Certificate</source>
        <extracomment>Title of the panel that asks for a certificate</extracomment>
        <translation>Ein CA-Zertifikat wählen</translation>
    </message>
    <message>
        <source>Certificates</source>
        <extracomment>Kind of file in a panel</extracomment>
        <translation>Zertifikate</translation>
    </message>
    <message>
        <source>Test connection</source>
        <extracomment>Sync settings: button</extracomment>
        <translation>Verbindung testen</translation>
    </message>
</context>
<context>
    <name>dropshade::TextField</name>
    <message>
        <source>Cut</source>
        <comment>Edit menu item</comment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>Edit menu item</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>Edit menu item</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>Edit menu item</comment>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>dropshade::TriggerField</name>
    <message>
        <source>The Desktop Asks…</source>
        <extracomment>On the field of a shortcut, while the desktop asks the user for keys</extracomment>
        <translation>Der Desktop fragt …</translation>
    </message>
    <message>
        <source>No Shortcut</source>
        <extracomment>On the field of a shortcut that the desktop has given none</extracomment>
        <translation>Kein Kürzel</translation>
    </message>
    <message>
        <source>Choose Shortcut…</source>
        <extracomment>On the field of a shortcut: has the desktop ask for keys</extracomment>
        <translation>Kürzel wählen …</translation>
    </message>
    <message>
        <source>This shortcut is the desktop’s.</source>
        <extracomment>Message where only the desktop can change a shortcut</extracomment>
        <translation>Dieses Tastenkürzel gehört dem Desktop.</translation>
    </message>
    <message>
        <source>Change it in the settings of the desktop, where it lists Dropshade.</source>
        <extracomment>Second line of the message</extracomment>
        <translation>Es lässt sich in den Einstellungen des Desktops ändern, wo er Dropshade aufführt.</translation>
    </message>
</context>
<context>
    <name>dropshade::UserPaletteStore</name>
    <message>
        <source>Imported Palette</source>
        <comment>Default name for an imported palette</comment>
        <translation>Importierte Palette</translation>
    </message>
    <message>
        <source>copy</source>
        <comment>Duplicate palette name suffix</comment>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>Untitled</source>
        <comment>Default name for new palette scale</comment>
        <translation>Ohne Titel</translation>
    </message>
</context>
</TS>
