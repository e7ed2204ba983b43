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
</TS>
