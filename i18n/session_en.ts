<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ChoiceTile</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Pinned by the session</translation>
    </message>
</context>
<context>
    <name>FinalStep</name>
    <message>
        <source>Start Brimshade with your Mac</source>
        <translation>Start Brimshade with your session</translation>
    </message>
    <message numerus="yes">
        <source>Finishing moves %n item(s) for you. Your pointer will jump for a few seconds, so hands off the mouse.</source>
        <translation>
            <numerusform>Finishing moves one item for you. It takes a few seconds.</numerusform>
            <numerusform>Finishing moves %n items for you. It takes a few seconds.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ItemRow</name>
    <message>
        <source>Pinned by macOS</source>
        <translation>Pinned by the session</translation>
    </message>
</context>
<context>
    <name>ItemsSection</name>
    <message>
        <source>When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item does a quick Cmd-drag across the Brimshade icon for you, so the pointer jumps for a moment. You can also Cmd-drag items across it yourself.</source>
        <translation>When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item drags it across the Brimshade icon for you. You can also Super-drag items across it yourself.</translation>
    </message>
</context>
<context>
    <name>MoveMessages</name>
    <message>
        <source>macOS didn&apos;t accept the move. Try again, or Cmd-drag it across the divider.</source>
        <translation>the menu bar didn&apos;t accept the move. Try again, or Super-drag it across the divider.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>⌃</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Shift+</translation>
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
        <translation>Hold Ctrl, Alt or Super and press a key.</translation>
    </message>
    <message>
        <source>That can&apos;t be a shortcut. Hold ⌃, ⌥ or ⌘ and press a key.</source>
        <translation>That can&apos;t be a shortcut. Hold Ctrl, Alt or Super and press a key.</translation>
    </message>
</context>
</TS>
