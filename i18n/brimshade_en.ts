<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FinalStep</name>
    <message numerus="yes">
        <source>Finishing moves %n item(s) for you. Your pointer will jump for a few seconds, so hands off the mouse.</source>
        <translation>
            <numerusform>Finishing moves %n item for you. Your pointer will jump for a few seconds, so hands off the mouse.</numerusform>
            <numerusform>Finishing moves %n items for you. Your pointer will jump for a few seconds, so hands off the mouse.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PanelHeader</name>
    <message numerus="yes">
        <source>%n hidden</source>
        <translation>
            <numerusform>%n hidden</numerusform>
            <numerusform>%n hidden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
</TS>
