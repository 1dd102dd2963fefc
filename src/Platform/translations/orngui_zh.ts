<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>ORNGUI::OrnWaitDialog</name>
    <message>
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
</context>
<context>
    <name>ORNGUI::detail::Toast</name>
    <message>
        <source>Notification</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
</TS>
