<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>APIModule::CAPIModule</name>
    <message>
        <source>:</source>
        <extracomment>Separates the description of the failure from the text of its code; a blank follows</extracomment>
        <translation>:</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation>Der Vorgang ist fehlgeschlagen</translation>
    </message>
</context>
</TS>
