<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>explorer::CallPanel</name>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n call</numerusform><numerusform>%n calls</numerusform></translation>
    </message>
</context>
<context>
    <name>explorer::RecordModel</name>
    <message numerus="yes">
        <source>%n element(s)</source>
        <translation>
            <numerusform>%n element</numerusform><numerusform>%n elements</numerusform></translation>
    </message>
</context>
<context>
    <name>explorer::RecordTable</name>
    <message numerus="yes">
        <source>%n row(s)</source>
        <translation>
            <numerusform>%n row</numerusform><numerusform>%n rows</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n row(s)</source>
        <translation>
            <numerusform>%1 of %n row</numerusform><numerusform>%1 of %n rows</numerusform></translation>
    </message>
</context>
<context>
    <name>explorer::RecordTableModel</name>
    <message numerus="yes">
        <source>%n element(s)</source>
        <translation>
            <numerusform>%n element</numerusform><numerusform>%n elements</numerusform></translation>
    </message>
</context>
<context>
    <name>explorer::RunBar</name>
    <message numerus="yes">
        <source>%n call(s) waiting for the server</source>
        <translation>
            <numerusform>%n call waiting for the server</numerusform><numerusform>%n calls waiting for the server</numerusform></translation>
    </message>
</context>
</TS>
