<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>As of %1</source>
        <translation>Stand %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Example client</source>
        <translation>Beispielclient</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>Token</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Parking lot</source>
        <translation>Parkplatz</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Spaces</source>
        <translation>Stellplätze</translation>
    </message>
    <message>
        <source>Synchronise time every (hours)</source>
        <translation>Uhrzeit synchronisieren alle (Stunden)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Search alarm plans</source>
        <translation>Alarmpläne suchen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>You are not signed in.</source>
        <translation>Sie sind nicht angemeldet.</translation>
    </message>
    <message>
        <source>This server is not trusted. Nothing was sent.</source>
        <translation>Dieser Server ist nicht vertrauenswürdig. Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>The reply is too large.</source>
        <translation>Die Antwort ist zu groß.</translation>
    </message>
    <message>
        <source>The reply is invalid. %1</source>
        <translation>Die Antwort ist ungültig. %1</translation>
    </message>
    <message>
        <source>The server refused this: %1 (code %2)</source>
        <translation>Der Server hat das abgelehnt: %1 (Code %2)</translation>
    </message>
    <message>
        <source>%1 (HTTP status %2)</source>
        <translation>%1 (HTTP-Status %2)</translation>
    </message>
    <message>
        <source>%1. Check whether it was saved before you retry.</source>
        <translation>%1. Prüfen Sie, ob gespeichert wurde, bevor Sie es erneut versuchen.</translation>
    </message>
</context>
</TS>
