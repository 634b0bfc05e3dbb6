<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Clipboard</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n item(s)</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message numerus="yes">
        <source>Start a timer of %n minute(s)</source>
        <translation>
            <numerusform>Start a timer of %n minute</numerusform>
            <numerusform>Start a timer of %n minutes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::AssistantsViewModel</name>
    <message numerus="yes">
        <source>%n day(s)</source>
        <comment>span of a limit</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n log(s) could not be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
    <name>Velvetnook::ClipboardPage</name>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::DataSettings</name>
    <message numerus="yes">
        <source>%n record(s) and the settings are in %1</source>
        <translation>
            <numerusform>%n record and the settings are in %1</numerusform>
            <numerusform>%n records and the settings are in %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n record(s) and the settings were imported.</source>
        <translation>
            <numerusform>%n record and the settings were imported.</numerusform>
            <numerusform>%n records and the settings were imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::NotesViewModel</name>
    <message numerus="yes">
        <source>%n note(s) on this computer</source>
        <translation>
            <numerusform>%n note on this computer</numerusform>
            <numerusform>%n notes on this computer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n word(s)</source>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::PaletteViewModel</name>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n result</numerusform>
            <numerusform>%n results</numerusform>
        </translation>
    </message>
</context>
</TS>
