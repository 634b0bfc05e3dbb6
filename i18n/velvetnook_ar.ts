<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>AskDialog</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopupMenu</name>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Prayers</name>
    <message>
        <source>Fajr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunrise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dhuhr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maghrib</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Isha</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>now</source>
        <comment>the time of a prayer has come</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1</source>
        <comment>42 min</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prayer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tasbih</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scratchpad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assistants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revenue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analytics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Velvetnook::Formatting</name>
    <message>
        <source>AM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Velvetnook::PanelViewModel</name>
    <message>
        <source>All tools</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
