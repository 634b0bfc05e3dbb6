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
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n log(s) could not be read</source>
        <translation>
            <numerusform>%n log could not be read</numerusform>
            <numerusform>%n logs could not be read</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::CalendarPageViewModel</name>
    <message numerus="yes">
        <source>%n calendar(s) could not be read in full</source>
        <translation>
            <numerusform>%n calendar could not be read in full</numerusform>
            <numerusform>%n calendars could not be read in full</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Read only · %n calendar(s)</source>
        <translation>
            <numerusform>Read only · %n calendar</numerusform>
            <numerusform>Read only · %n calendars</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::CalendarRows</name>
    <message numerus="yes">
        <source>%n more like it.</source>
        <translation>
            <numerusform>%n more like it.</numerusform>
            <numerusform>%n more like it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s) in it could not be read.</source>
        <translation>
            <numerusform>%n event in it could not be read.</numerusform>
            <numerusform>%n events in it could not be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n event</numerusform>
            <numerusform>%n events</numerusform>
        </translation>
    </message>
</context>
<context>
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
    <name>Velvetnook::LinksViewModel</name>
    <message numerus="yes">
        <source>%n bookmark(s)</source>
        <translation>
            <numerusform>%n bookmark</numerusform>
            <numerusform>%n bookmarks</numerusform>
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
<context>
    <name>Velvetnook::ShelfViewModel</name>
    <message numerus="yes">
        <source>%n file(s) · stays on this computer</source>
        <translation>
            <numerusform>%n file · stays on this computer</numerusform>
            <numerusform>%n files · stays on this computer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) · stays on this computer</source>
        <translation>
            <numerusform>%n thing · stays on this computer</numerusform>
            <numerusform>%n things · stays on this computer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Velvetnook::SoundMixViewModel</name>
    <message numerus="yes">
        <source>%n sound(s) playing together</source>
        <translation>
            <numerusform>%n sound playing</numerusform>
            <numerusform>%n sounds playing together</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound(s) paused</source>
        <translation>
            <numerusform>%n sound paused</numerusform>
            <numerusform>%n sounds paused</numerusform>
        </translation>
    </message>
</context>
</TS>
