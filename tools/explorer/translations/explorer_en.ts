<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>explorer::CallPanel</name>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n call</numerusform>
            <numerusform>%n calls</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::CompareDialog</name>
    <message numerus="yes">
        <source>%n more character(s)</source>
        <translation>
            <numerusform>%n more character</numerusform>
            <numerusform>%n more characters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::RunBar</name>
    <message numerus="yes">
        <source>%n call(s) waiting for the server</source>
        <translation>
            <numerusform>%n call waiting for the server</numerusform>
            <numerusform>%n calls waiting for the server</numerusform>
        </translation>
    </message>
</context>
</TS>
