<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ZARN::CardController</name>
    <message numerus="yes">
        <source>... and %n more; all are marked under &quot;Raw Data&quot;</source>
        <translation>
            <numerusform>... and %n more; all are marked under &quot;Raw Data&quot;</numerusform>
            <numerusform>... and %n more; all are marked under &quot;Raw Data&quot;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::DialogData</name>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n event</numerusform>
            <numerusform>%n events</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::DialogDataGraph</name>
    <message numerus="yes">
        <source>%1 Not shown: %2 and %n more</source>
        <translation>
            <numerusform>%1 Not shown: %2 and %n more</numerusform>
            <numerusform>%1 Not shown: %2 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::DialogXy</name>
    <message numerus="yes">
        <source>%Ln sample(s); the newest value of each parameter is held until its next.</source>
        <translation>
            <numerusform>%Ln sample; the newest value of each parameter is held until its next.</numerusform>
            <numerusform>%Ln samples; the newest value of each parameter is held until its next.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::FlightReport</name>
    <message numerus="yes">
        <source>Not shown: %n more that exceeded a limit</source>
        <translation>
            <numerusform>Not shown: %n more that exceeded a limit</numerusform>
            <numerusform>Not shown: %n more that exceeded a limit</numerusform>
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
        <source>Outside of the flight: %n more in this power cycle.</source>
        <translation>
            <numerusform>Outside of the flight: %n more in this power cycle.</numerusform>
            <numerusform>Outside of the flight: %n more in this power cycle.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::IncidentGraph</name>
    <message numerus="yes">
        <source>not shown: %n more</source>
        <translation>
            <numerusform>not shown: %n more</numerusform>
            <numerusform>not shown: %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::LiveBar</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::LiveText</name>
    <message numerus="yes">
        <source>%Ln frame(s)</source>
        <translation>
            <numerusform>%Ln frame</numerusform>
            <numerusform>%Ln frames</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln error(s)</source>
        <translation>
            <numerusform>%Ln error</numerusform>
            <numerusform>%Ln errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>frames lost: %Ln time(s)</source>
        <translation>
            <numerusform>frames lost: %Ln time</numerusform>
            <numerusform>frames lost: %Ln times</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln frame(s) of other kinds</source>
        <translation>
            <numerusform>%Ln frame of other kinds</numerusform>
            <numerusform>%Ln frames of other kinds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln frame(s) recorded into %1</source>
        <translation>
            <numerusform>%Ln frame recorded into %1</numerusform>
            <numerusform>%Ln frames recorded into %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookTexts</name>
    <message numerus="yes">
        <source>%1 (%n cycle(s) do not tell)</source>
        <translation>
            <numerusform>%1 (%n cycle does not tell)</numerusform>
            <numerusform>%1 (%n cycles do not tell)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The unit&apos;s clock went back from one recording to the next, so that dates, and what is due by them, may be wrong: %n time(s)</source>
        <translation>
            <numerusform>The unit&apos;s clock went back from one recording to the next, so that dates, and what is due by them, may be wrong: %n time</numerusform>
            <numerusform>The unit&apos;s clock went back from one recording to the next, so that dates, and what is due by them, may be wrong: %n times</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n flight(s) do not tell)</source>
        <translation>
            <numerusform>%1 (%n flight does not tell)</numerusform>
            <numerusform>%1 (%n flights do not tell)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::LogbookTrends</name>
    <message numerus="yes">
        <source>%1, %n flight(s)</source>
        <translation>
            <numerusform>%1, %n flight</numerusform>
            <numerusform>%1, %n flights</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::ShownParameter</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::TraceMenu</name>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n pixel</numerusform>
            <numerusform>%n pixels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ZARN::WidgetMap</name>
    <message numerus="yes">
        <source>Loading the map: %n tile(s)</source>
        <translation>
            <numerusform>Loading the map: %n tile</numerusform>
            <numerusform>Loading the map: %n tiles</numerusform>
        </translation>
    </message>
</context>
</TS>
