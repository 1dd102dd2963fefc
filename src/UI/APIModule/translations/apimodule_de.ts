<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>APIModule::CAPIModule</name>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>Der Vorgang ist fehlgeschlagen</translation>
    </message>
</context>
</TS>
