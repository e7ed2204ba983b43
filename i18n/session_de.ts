<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ChoiceTile</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Von der Sitzung fixiert</translation>
    </message>
</context>
<context>
    <name>FinalStep</name>
    <message>
        <source>Start Brimshade with your Mac</source>
        <translation>Brimshade mit der Sitzung starten</translation>
    </message>
    <message numerus="yes">
        <source>Finishing moves %n item(s) for you. Your pointer will jump for a few seconds, so hands off the mouse.</source>
        <translation>
            <numerusform>Zum Schluss wird ein Symbol bewegt. Das dauert einige Sekunden.</numerusform>
            <numerusform>Zum Schluss werden %n Symbole bewegt. Das dauert einige Sekunden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemRow</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Von der Sitzung fixiert</translation>
    </message>
</context>
<context>
    <name>ItemsSection</name>
    <message>
        <source>When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item does a quick Cmd-drag across the Brimshade icon for you, so the pointer jumps for a moment. You can also Cmd-drag items across it yourself.</source>
        <translation>Eingeschaltet wird das Symbol von Brimshade bis zur Notch breit, und alles links davon verschwindet in ihr. Schaltest du ein Symbol um, wird es für dich über das Symbol von Brimshade gezogen. Mit gedrückter Super-Taste kannst du Symbole auch selbst darüberziehen.</translation>
    </message>
</context>
<context>
    <name>MoveMessages</name>
    <message>
        <source>macOS didn&apos;t accept the move. Try again, or Cmd-drag it across the divider.</source>
        <translation>Die Menüleiste hat die Bewegung nicht angenommen. Versuche es noch einmal, oder ziehe das Symbol mit gedrückter Super-Taste über den Trenner.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>⌃</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Umschalt+</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Super+%1</translation>
    </message>
</context>
<context>
    <name>brimshade::model::ShortcutRecorder</name>
    <message>
        <source>Hold ⌃, ⌥ or ⌘ and press a key.</source>
        <translation>Halte Strg, Alt oder Super gedrückt und drücke eine weitere Taste.</translation>
    </message>
    <message>
        <source>That can&apos;t be a shortcut. Hold ⌃, ⌥ or ⌘ and press a key.</source>
        <translation>Das geht nicht als Kurzbefehl. Halte Strg, Alt oder Super gedrückt und drücke eine weitere Taste.</translation>
    </message>
</context>
</TS>
