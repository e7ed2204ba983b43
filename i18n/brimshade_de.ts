<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessibilityPage</name>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Allow the applications below to control your computer.</source>
        <translation>Erlaube den Apps unten, deinen Computer zu steuern.</translation>
    </message>
    <message>
        <source>Allow Brimshade</source>
        <translation>Brimshade erlauben</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>Open or close Brimshade</source>
        <translation>Brimshade öffnen oder schließen</translation>
    </message>
</context>
<context>
    <name>ApplicationMenus</name>
    <message>
        <source>File</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>BarItemView</name>
    <message>
        <source>Wants attention</source>
        <translation>Möchte Aufmerksamkeit</translation>
    </message>
</context>
<context>
    <name>BottomBar</name>
    <message>
        <source>Get started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Skip for now</source>
        <translation>Vorerst überspringen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>ChoiceTile</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Von macOS fixiert</translation>
    </message>
    <message>
        <source>Tucked into the notch. Click to keep it in the menu bar.</source>
        <translation>In der Notch verstaut. Klicken, um es in der Menüleiste zu behalten.</translation>
    </message>
    <message>
        <source>In the menu bar. Click to tuck it away.</source>
        <translation>In der Menüleiste. Klicken, um es zu verstauen.</translation>
    </message>
</context>
<context>
    <name>FinalStep</name>
    <message>
        <source>Almost there</source>
        <translation>Fast geschafft</translation>
    </message>
    <message>
        <source>A couple of last details.</source>
        <translation>Noch ein paar letzte Details.</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Start Brimshade with your Mac</source>
        <translation>Brimshade zusammen mit dem Mac starten</translation>
    </message>
    <message>
        <source>Show every item in the panel</source>
        <translation>Alle Objekte im Panel zeigen</translation>
    </message>
    <message>
        <source>Not only the hidden ones</source>
        <translation>Nicht nur die ausgeblendeten</translation>
    </message>
    <message numerus="yes">
        <source>Finishing moves %n item(s) for you. Your pointer will jump for a few seconds, so hands off the mouse.</source>
        <translation>
            <numerusform>Zum Abschluss wird %n Objekt für dich verschoben. Der Zeiger springt dabei einige Sekunden lang, also Hände weg von der Maus.</numerusform>
            <numerusform>Zum Abschluss werden %n Objekte für dich verschoben. Der Zeiger springt dabei einige Sekunden lang, also Hände weg von der Maus.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GearButton</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>ItemHotkeys</name>
    <message>
        <source>%1 already opens the menu of %2.</source>
        <translation>%1 öffnet schon das Menü von %2.</translation>
    </message>
    <message>
        <source>%1 already opens Brimshade.</source>
        <translation>%1 öffnet schon Brimshade.</translation>
    </message>
    <message>
        <source>%1 already belongs to another program.</source>
        <translation>%1 gehört schon einem anderen Programm.</translation>
    </message>
    <message>
        <source>Open the menu of %1</source>
        <translation>Menü von %1 öffnen</translation>
    </message>
    <message>
        <source>It is not running.</source>
        <translation>Das Programm läuft nicht.</translation>
    </message>
</context>
<context>
    <name>ItemRow</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Von macOS fixiert</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
</context>
<context>
    <name>ItemsSection</name>
    <message>
        <source>Menu bar items</source>
        <translation>Objekte der Menüleiste</translation>
    </message>
    <message>
        <source>When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item does a quick Cmd-drag across the Brimshade icon for you, so the pointer jumps for a moment. You can also Cmd-drag items across it yourself.</source>
        <translation>Ist dies eingeschaltet, wird das Brimshade-Symbol bis zur Notch verbreitert und alles links davon in der Notch verstaut. Beim Umschalten eines Objekts zieht Brimshade es kurz mit gedrückter Befehlstaste über das Brimshade-Symbol, deshalb springt der Zeiger für einen Moment. Du kannst Objekte auch selbst mit gedrückter Befehlstaste darüberziehen.</translation>
    </message>
    <message>
        <source>Tuck away items left of Brimshade</source>
        <translation>Objekte links von Brimshade verstauen</translation>
    </message>
    <message>
        <source>Reading your menu bar…</source>
        <translation>Menüleiste wird gelesen …</translation>
    </message>
    <message>
        <source>Allow Accessibility access to manage your menu bar.</source>
        <translation>Erlaube den Zugriff auf Bedienungshilfen, um deine Menüleiste zu verwalten.</translation>
    </message>
</context>
<context>
    <name>ItemsStep</name>
    <message>
        <source>What stays in the menu bar?</source>
        <translation>Was bleibt in der Menüleiste?</translation>
    </message>
    <message>
        <source>Lit items stay in the menu bar. Dimmed ones are tucked into the notch, one click away.</source>
        <translation>Helle Objekte bleiben in der Menüleiste. Gedimmte sind in der Notch verstaut, nur einen Klick entfernt.</translation>
    </message>
    <message>
        <source>Reading your menu bar…</source>
        <translation>Menüleiste wird gelesen …</translation>
    </message>
    <message>
        <source>Allow Accessibility first to see your items.</source>
        <translation>Erlaube zuerst die Bedienungshilfen, um deine Objekte zu sehen.</translation>
    </message>
    <message>
        <source>%1 in the menu bar  ·  %2 in the notch</source>
        <translation>%1 in der Menüleiste  ·  %2 in der Notch</translation>
    </message>
</context>
<context>
    <name>MenuBarSection</name>
    <message>
        <source>Menu Bar</source>
        <translation>Menüleiste</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Notch</source>
        <translation>Notch</translation>
    </message>
    <message>
        <source>Width of the notch</source>
        <translation>Breite der Notch</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>MenuView</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MoveMessages</name>
    <message>
        <source>the menu bar isn&apos;t showing on this display (a full-screen app, or the active menu bar is on another screen). Try again from the desktop.</source>
        <translation>Die Menüleiste ist auf diesem Display nicht zu sehen (eine App im Vollbild, oder die aktive Menüleiste ist auf einem anderen Bildschirm). Versuche es vom Schreibtisch aus erneut.</translation>
    </message>
    <message>
        <source>there&apos;s no room for it next to the notch. Hide another item first.</source>
        <translation>Neben der Notch ist kein Platz dafür. Blende zuerst ein anderes Objekt aus.</translation>
    </message>
    <message>
        <source>macOS didn&apos;t accept the move. Try again, or Cmd-drag it across the divider.</source>
        <translation>macOS hat das Verschieben nicht angenommen. Versuche es erneut oder ziehe das Objekt mit gedrückter Befehlstaste über den Trenner.</translation>
    </message>
    <message>
        <source>Some items didn&apos;t move.</source>
        <translation>Einige Objekte wurden nicht verschoben.</translation>
    </message>
</context>
<context>
    <name>OpeningSection</name>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open when the pointer rests on the notch</source>
        <translation>Öffnen, wenn der Zeiger auf der Notch ruht</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <translation>Tastaturkurzbefehl</translation>
    </message>
</context>
<context>
    <name>OpeningStep</name>
    <message>
        <source>How do you want to open it?</source>
        <translation>Wie möchtest du es öffnen?</translation>
    </message>
    <message>
        <source>The icon right of the notch always works. Add a shortcut or a hover if you like.</source>
        <translation>Das Symbol rechts der Notch funktioniert immer. Kurzbefehl und Ruhenlassen des Zeigers sind optional.</translation>
    </message>
    <message>
        <source>Hover the notch</source>
        <translation>Auf die Notch zeigen</translation>
    </message>
    <message>
        <source>Rest the pointer on the notch to open Brimshade</source>
        <translation>Zeiger auf der Notch ruhen lassen, um Brimshade zu öffnen</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <translation>Tastaturkurzbefehl</translation>
    </message>
    <message>
        <source>Open from anywhere</source>
        <translation>Von überall öffnen</translation>
    </message>
</context>
<context>
    <name>PanelHeader</name>
    <message numerus="yes">
        <source>%n hidden</source>
        <translation>
            <numerusform>%n ausgeblendet</numerusform>
            <numerusform>%n ausgeblendet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PermissionCard</name>
    <message>
        <source>One permission, then you&apos;re set</source>
        <translation>Eine Erlaubnis, dann kann es losgehen</translation>
    </message>
    <message>
        <source>Brimshade reads your menu bar through Accessibility.
Nothing leaves your Mac.</source>
        <translation>Brimshade liest deine Menüleiste über die Bedienungshilfen.
Nichts verlässt deinen Mac.</translation>
    </message>
    <message>
        <source>Open Accessibility Settings</source>
        <translation>Bedienungshilfen-Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>PermissionPrompt</name>
    <message>
        <source>Accessibility Access</source>
        <translation>Zugriff auf Bedienungshilfen</translation>
    </message>
    <message>
        <source>“Brimshade” would like to control this computer using accessibility features.</source>
        <translation>„Brimshade“ möchte diesen Computer mithilfe der Bedienungshilfen steuern.</translation>
    </message>
    <message>
        <source>Grant access to this application in the Accessibility settings.</source>
        <translation>Erlaube dieser App den Zugriff in den Einstellungen unter „Bedienungshilfen“.</translation>
    </message>
    <message>
        <source>Deny</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>PermissionStep</name>
    <message>
        <source>Allow Accessibility</source>
        <translation>Bedienungshilfen erlauben</translation>
    </message>
    <message>
        <source>Brimshade reads your menu bar items and opens them through Accessibility.
Nothing leaves your Mac.</source>
        <translation>Brimshade liest und öffnet die Objekte deiner Menüleiste über die Bedienungshilfen.
Nichts verlässt deinen Mac.</translation>
    </message>
    <message>
        <source>Access granted</source>
        <translation>Zugriff erlaubt</translation>
    </message>
    <message>
        <source>Waiting for access…</source>
        <translation>Warten auf Zugriff …</translation>
    </message>
    <message>
        <source>Open Accessibility Settings</source>
        <translation>Bedienungshilfen-Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Already listed but this doesn&apos;t turn green? Select Brimshade, remove it with –, then allow it again.</source>
        <translation>Schon in der Liste, aber hier wird nichts grün? Wähle Brimshade aus, entferne es mit „–“ und erlaube es dann erneut.</translation>
    </message>
</context>
<context>
    <name>SecondaryWindows</name>
    <message>
        <source>Brimshade Settings</source>
        <translation>Brimshade-Einstellungen</translation>
    </message>
</context>
<context>
    <name>Sections</name>
    <message>
        <source>Behind the notch</source>
        <translation>Hinter der Notch</translation>
    </message>
    <message>
        <source>In the menu bar</source>
        <translation>In der Menüleiste</translation>
    </message>
</context>
<context>
    <name>SessionBar</name>
    <message>
        <source>Menu bar</source>
        <translation>Menüleiste</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Also show items already in the menu bar</source>
        <translation>Auch Objekte zeigen, die in der Menüleiste sind</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Run Setup Again…</source>
        <translation>Einrichtung erneut starten …</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>⌘%1</source>
        <translation>⌘%1</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>⌃</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>⌥</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>⇧</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>⌘</translation>
    </message>
</context>
<context>
    <name>ShortcutCard</name>
    <message>
        <source>Shortcut for %1</source>
        <translation>Kurzbefehl für %1</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>Tasten drücken</translation>
    </message>
    <message>
        <source>Remove  ⌫</source>
        <translation>Entfernen  ⌫</translation>
    </message>
    <message>
        <source>Remove Shortcut</source>
        <translation>Kurzbefehl entfernen</translation>
    </message>
    <message>
        <source>Done  esc</source>
        <translation>Fertig  esc</translation>
    </message>
    <message>
        <source>Cancel  esc</source>
        <translation>Abbrechen  esc</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>In Arbeit</translation>
    </message>
</context>
<context>
    <name>StatusMenu</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Setup Guide…</source>
        <translation>Einrichtung …</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Quit Brimshade</source>
        <translation>Brimshade beenden</translation>
    </message>
</context>
<context>
    <name>StepDots</name>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
</context>
<context>
    <name>Tile</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in Menu Bar</source>
        <translation>In der Menüleiste zeigen</translation>
    </message>
    <message>
        <source>Hide from Menu Bar</source>
        <translation>Aus der Menüleiste ausblenden</translation>
    </message>
    <message>
        <source>Activate</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Change Shortcut…</source>
        <translation>Kurzbefehl ändern …</translation>
    </message>
    <message>
        <source>Set Shortcut…</source>
        <translation>Kurzbefehl festlegen …</translation>
    </message>
    <message>
        <source>Remove Shortcut</source>
        <translation>Kurzbefehl entfernen</translation>
    </message>
</context>
<context>
    <name>TileMarks</name>
    <message>
        <source>Wants attention</source>
        <translation>Möchte Aufmerksamkeit</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Your whole menu bar, one click away</source>
        <translation>Deine ganze Menüleiste, nur einen Klick entfernt</translation>
    </message>
    <message>
        <source>The notch hides menu bar items when there&apos;s no room.
Brimshade opens the notch and shows every one of them.</source>
        <translation>Die Notch verdeckt Objekte der Menüleiste, wenn der Platz nicht reicht.
Brimshade öffnet die Notch und zeigt sie alle.</translation>
    </message>
</context>
<context>
    <name>brimshade::desktop::Applications</name>
    <message>
        <source>It is no longer there.</source>
        <translation>Es ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>brimshade::desktop::TrayHost</name>
    <message>
        <source>The session&apos;s message bus is gone, and the tray&apos;s items with it.</source>
        <translation>Der Nachrichtenbus der Sitzung ist weg, und mit ihm die Symbole der Programme.</translation>
    </message>
</context>
<context>
    <name>brimshade::desktop::WallClock</name>
    <message>
        <source>ddd MMM d  HH:mm</source>
        <translation>ddd d. MMM  HH:mm</translation>
    </message>
    <message>
        <source>ddd HH:mm</source>
        <translation>ddd HH:mm</translation>
    </message>
    <message>
        <source>HH:mm</source>
        <translation>HH:mm</translation>
    </message>
</context>
<context>
    <name>brimshade::desktop::session::SessionPreferences</name>
    <message>
        <source>Plasma shows the same tray items. Remove the System Tray from its panel to see them only here; everything else works side by side.</source>
        <translation>Plasma zeigt dieselben Symbole. Entferne dort den Systemabschnitt der Kontrollleiste, damit sie nur hier stehen; alles andere verträgt sich.</translation>
    </message>
    <message>
        <source>waybar shows the same tray items. Take “tray” out of its modules to see them only here; the rest of waybar works below this bar.</source>
        <translation>waybar zeigt dieselben Symbole. Nimm dort „tray“ aus den Modulen, damit sie nur hier stehen; der Rest von waybar läuft unter dieser Leiste weiter.</translation>
    </message>
    <message>
        <source>The Xfce panel shows the same tray items. Remove its Status Tray Plugin to see them only here; the rest of the panel works side by side.</source>
        <translation>Die Xfce-Leiste zeigt dieselben Symbole. Entferne dort das Modul für Statussymbole, damit sie nur hier stehen; alles andere verträgt sich.</translation>
    </message>
    <message>
        <source>Another tray host (%1) shows the same items. Switch its tray off to see them only here.</source>
        <translation>Ein anderes Programm (%1) zeigt dieselben Symbole. Schalte sie dort aus, damit sie nur hier stehen.</translation>
    </message>
    <message>
        <source>Here no program may take a shortcut by itself. Bind a key to “%1”; in sway:
bindsym Mod4+%2 exec %1</source>
        <translation>Hier darf kein Programm selbst einen Kurzbefehl belegen. Lege „%1“ auf eine Taste, in sway:
bindsym Mod4+%2 exec %1</translation>
    </message>
</context>
<context>
    <name>brimshade::desktop::tray::BusItems</name>
    <message>
        <source>The program does not answer.</source>
        <translation>Das Programm antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>brimshade::model::NotchModel</name>
    <message>
        <source>Couldn&apos;t change Launch at Login: </source>
        <translation>„Bei der Anmeldung starten“ konnte nicht geändert werden: </translation>
    </message>
</context>
<context>
    <name>brimshade::model::ShortcutRecorder</name>
    <message>
        <source>Hold ⌃, ⌥ or ⌘ and press a key.</source>
        <translation>Halte ⌃, ⌥ oder ⌘ gedrückt und drücke eine weitere Taste.</translation>
    </message>
    <message>
        <source>That can&apos;t be a shortcut. Hold ⌃, ⌥ or ⌘ and press a key.</source>
        <translation>Das geht nicht als Kurzbefehl. Halte ⌃, ⌥ oder ⌘ gedrückt und drücke eine weitere Taste.</translation>
    </message>
    <message>
        <source>Opens its menu from anywhere.</source>
        <translation>Öffnet das Menü jetzt von überall.</translation>
    </message>
</context>
<context>
    <name>brimshade::panel::PanelState</name>
    <message>
        <source>No menu bar items found. If you just allowed Accessibility, quit and reopen Brimshade.</source>
        <translation>Keine Objekte in der Menüleiste gefunden. Wenn du die Bedienungshilfen gerade erst erlaubt hast, beende Brimshade und öffne es erneut.</translation>
    </message>
    <message>
        <source>Nothing is hidden. Everything fits in your menu bar.</source>
        <translation>Nichts ist ausgeblendet. Alles passt in deine Menüleiste.</translation>
    </message>
    <message>
        <source>No matches for “%1”</source>
        <translation>Keine Treffer für „%1“</translation>
    </message>
    <message>
        <source>Type to search  ·  ↩ to open  ·  right-click to hide or show  ·  esc to close</source>
        <translation>Tippen sucht  ·  ↩ öffnet  ·  Rechtsklick blendet aus oder ein  ·  esc schließt</translation>
    </message>
    <message>
        <source>Type to search  ·  ↩ to open  ·  esc to close</source>
        <translation>Tippen sucht  ·  ↩ öffnet  ·  esc schließt</translation>
    </message>
</context>
<context>
    <name>brimshade::windows::MenuBarChoices</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>The machine’s own</source>
        <translation>Die des Geräts</translation>
    </message>
    <message>
        <source>Drawn</source>
        <translation>Gezeichnet</translation>
    </message>
    <message>
        <source>Drawn, custom width</source>
        <translation>Gezeichnet, mit Breite</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
</context>
<context>
    <name>brimshade::windows::ShortcutChoice</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
</context>
</TS>
