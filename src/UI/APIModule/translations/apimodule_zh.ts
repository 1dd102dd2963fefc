<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>APIModule::CAPIModule</name>
    <message>
        <source>:</source>
        <extracomment>Separates the description of the failure from the text of its code; a blank follows</extracomment>
        <translation>：</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>操作失败</translation>
    </message>
</context>
</TS>
