<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ORNGUI::OrnWaitDialog</name>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
</context>
<context>
    <name>ORNGUI::detail::Toast</name>
    <message>
        <source>Notification</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
</TS>
