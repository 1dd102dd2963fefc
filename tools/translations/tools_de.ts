<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>cannot read %1</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>cannot open %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 is not JSON: it cannot be read from byte %2 on</source>
        <extracomment>%1 is what was read, %2 a number</extracomment>
        <translation>%1 ist kein JSON: ab Byte %2 ist es nicht lesbar</translation>
    </message>
    <message>
        <source>nothing may follow the JSON object with the arguments</source>
        <translation>auf das JSON-Objekt mit den Argumenten darf nichts folgen</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>die Standardeingabe</translation>
    </message>
    <message>
        <source>the argument</source>
        <translation>das Argument</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is neither name=value nor a JSON object</source>
        <translation>das Argument „%1“ ist weder Name=Wert noch ein JSON-Objekt</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; is given twice</source>
        <translation>das Argument „%1“ ist doppelt angegeben</translation>
    </message>
    <message>
        <source>argument &quot;%1&quot; (%2)</source>
        <extracomment>%1 is the name, %2 the type</extracomment>
        <translation>das Argument „%1“ (%2)</translation>
    </message>
    <message>
        <source>first byte after %1 ms, end after %2 ms</source>
        <extracomment>Times in milliseconds</extracomment>
        <translation>erstes Byte nach %1 ms, Ende nach %2 ms</translation>
    </message>
    <message>
        <source>Arguments: none</source>
        <translation>Argumente: keine</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Result: none</source>
        <translation>Ergebnis: keines</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Ergebnis: %1</translation>
    </message>
    <message>
        <source>there is no call &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>den Aufruf „%1“ gibt es nicht; ist „%2“ gemeint?</translation>
    </message>
    <message>
        <source>there is no call &quot;%1&quot;; apicall --list names them</source>
        <translation>es gibt keinen Aufruf „%1“; apicall --list nennt alle</translation>
    </message>
    <message>
        <source>the server says %1</source>
        <extracomment>%1 is the server&apos;s own text in quotation marks</extracomment>
        <translation>der Server sagt %1</translation>
    </message>
    <message>
        <source>the reply holds no readable %1</source>
        <extracomment>%1 is a key of a JSON object in quotation marks</extracomment>
        <translation>die Antwort enthält kein lesbares %1</translation>
    </message>
    <message>
        <source>the server speaks no TLS on this port, which may be the one for http://</source>
        <translation>der Server spricht auf diesem Port kein TLS; vielleicht ist es der für http://</translation>
    </message>
    <message>
        <source>--server is missing</source>
        <translation>--server fehlt</translation>
    </message>
    <message>
        <source>--pin and --ca need a server with https://</source>
        <translation>--pin und --ca brauchen einen Server mit https://</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the texts of error codes</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 failed with %2: %3</source>
        <extracomment>%1 is the call, %2 a code, %3 its text</extracomment>
        <translation>%1 ist fehlgeschlagen mit %2: %3</translation>
    </message>
    <message>
        <source>--merge: no call reads what %1 writes</source>
        <extracomment>%1 is a call</extracomment>
        <translation>--merge: kein Aufruf liest, was %1 schreibt</translation>
    </message>
    <message>
        <source>the result cannot be written</source>
        <translation>das Ergebnis kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>no call is named; apicall --help tells how it is used</source>
        <translation>es ist kein Aufruf angegeben; apicall --help sagt, wie es geht</translation>
    </message>
    <message>
        <source>Arguments of a call:
  name=value        a text as it stands, anything else as JSON
  name/field=value  a field of a record; name/0 is the first element of a list
  {&quot;name&quot;: value}   all of them in one JSON object; @FILE or - reads it from a file or from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output carries the result alone, null for a call without one; log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 wrong usage.</source>
        <translation>Argumente eines Aufrufs:
  Name=Wert         ein Text, wie er da steht, alles andere als JSON
  Name/Feld=Wert    ein Feld eines Datensatzes; name/0 ist das erste Element einer Liste
  {&quot;Name&quot;: Wert}    alle in einem JSON-Objekt; @DATEI oder - liest es aus einer Datei oder von der Standardeingabe

Beispiele:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Die Standardausgabe trägt allein das Ergebnis, null bei einem Aufruf ohne Ergebnis; Protokollzeilen und Fehler gehen auf die Standardfehlerausgabe.
Rückgabewert: 0 Erfolg, 1 fehlgeschlagener Aufruf, 2 falsche Verwendung.</translation>
    </message>
    <message>
        <source>Runs one call of the library against a platform server and prints its record as JSON.</source>
        <translation>Führt einen Aufruf der Bibliothek an einem Plattformserver aus und gibt dessen Datensatz als JSON aus.</translation>
    </message>
    <message>
        <source>Print this help, or the arguments and the result of CALL</source>
        <translation>Diese Hilfe ausgeben, oder Argumente und Ergebnis von CALL</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Die Version ausgeben</translation>
    </message>
    <message>
        <source>List the calls</source>
        <translation>Die Aufrufe auflisten</translation>
    </message>
    <message>
        <source>Print names alone: of the calls, or of the arguments of CALL</source>
        <translation>Nur Namen ausgeben: die der Aufrufe oder die der Argumente von CALL</translation>
    </message>
    <message>
        <source>Write log lines only when the call fails</source>
        <translation>Protokollzeilen nur schreiben, wenn der Aufruf fehlschlägt</translation>
    </message>
    <message>
        <source>Write request and reply to standard error, without the token</source>
        <translation>Anfrage und Antwort ohne das Token auf die Standardfehlerausgabe schreiben</translation>
    </message>
    <message>
        <source>Print the request, without the token, and send nothing</source>
        <translation>Die Anfrage ohne das Token ausgeben und nichts senden</translation>
    </message>
    <message>
        <source>For a call that writes: read what it replaces, change what ARGUMENT names, and write that</source>
        <translation>Für einen Aufruf, der schreibt: lesen, was er ersetzt, ändern, was ARGUMENT nennt, und das schreiben</translation>
    </message>
    <message>
        <source>Platform server: https://host[:port] or http://host[:port]</source>
        <translation>Plattformserver: https://Host[:Port] oder http://Host[:Port]</translation>
    </message>
    <message>
        <source>Session token; the environment keeps it out of the process list</source>
        <translation>Token der Sitzung; aus der Umgebung genommen, erscheint es nicht in der Prozessliste</translation>
    </message>
    <message>
        <source>Trust only servers with this SHA-256 digest of their certificate or public key; repeatable</source>
        <translation>Nur Servern vertrauen, deren Zertifikat oder öffentlicher Schlüssel diesen SHA-256-Fingerabdruck hat; wiederholbar</translation>
    </message>
    <message>
        <source>DIGEST</source>
        <extracomment>Stands for the value of --pin</extracomment>
        <translation>FINGERABDRUCK</translation>
    </message>
    <message>
        <source>Trust only servers whose certificate an authority of this PEM file signed; repeatable</source>
        <translation>Nur Servern vertrauen, deren Zertifikat eine Zertifizierungsstelle aus dieser PEM-Datei unterschrieben hat; wiederholbar</translation>
    </message>
    <message>
        <source>FILE</source>
        <extracomment>Stands for the value of --ca</extracomment>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Language of the server&apos;s texts, otherwise English, and of the error texts</source>
        <translation>Sprache der Texte des Servers, sonst Englisch, und der Fehlertexte</translation>
    </message>
    <message>
        <source>Server identifier that the call is made with</source>
        <translation>Serverkennung, mit der der Aufruf erfolgt</translation>
    </message>
    <message>
        <source>Longest wait, instead of the call&apos;s own 10 s</source>
        <translation>Längste Wartezeit, anstelle der 10 s des Aufrufs</translation>
    </message>
    <message>
        <source>SECONDS</source>
        <extracomment>Stands for the value of --timeout</extracomment>
        <translation>SEKUNDEN</translation>
    </message>
    <message>
        <source>Name of the call</source>
        <translation>Name des Aufrufs</translation>
    </message>
    <message>
        <source>Arguments of the call</source>
        <translation>Argumente des Aufrufs</translation>
    </message>
    <message>
        <source>this is no URL</source>
        <translation>das ist keine URL</translation>
    </message>
    <message>
        <source>it must begin with https:// or http://</source>
        <translation>sie muss mit https:// oder http:// beginnen</translation>
    </message>
    <message>
        <source>it names no host</source>
        <translation>sie nennt keinen Host</translation>
    </message>
    <message>
        <source>only a host and a port may follow the scheme</source>
        <translation>auf das Schema dürfen nur Host und Port folgen</translation>
    </message>
    <message>
        <source>a SHA-256 digest has 64 hexadecimal digits, with or without colons</source>
        <translation>ein SHA-256-Fingerabdruck hat 64 hexadezimale Ziffern, mit oder ohne Doppelpunkte</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the file holds no certificate in PEM</source>
        <translation>die Datei enthält kein Zertifikat im Format PEM</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;: it takes none</source>
        <extracomment>%1 is a call</extracomment>
        <translation>%1 hat kein Argument „%2“: der Aufruf nimmt keine</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; did you mean &quot;%3&quot;?</source>
        <extracomment>%1 is a call, %3 the name of one of its arguments</extracomment>
        <translation>%1 hat kein Argument „%2“; ist „%3“ gemeint?</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;: it takes %3</source>
        <extracomment>%1 is a call, %3 the names of its arguments</extracomment>
        <translation>%1 hat kein Argument „%2“: der Aufruf nimmt %3</translation>
    </message>
    <message>
        <source>the arguments of %1 must be a JSON object that holds each under its name</source>
        <translation>die Argumente von %1 müssen ein JSON-Objekt sein, das jedes unter seinem Namen enthält</translation>
    </message>
    <message>
        <source>%1 needs the argument &quot;%2&quot; (%3)</source>
        <extracomment>%1 is a call, %3 a type</extracomment>
        <translation>%1 braucht das Argument „%2“ (%3)</translation>
    </message>
    <message>
        <source>%1, which is read first, needs &quot;%2&quot; of %3</source>
        <extracomment>%1 is a call, %2 the argument that it needs, %3 another call, which the user runs</extracomment>
        <translation>%1, das zuerst gelesen wird, braucht „%2“ von %3</translation>
    </message>
    <message>
        <source>/%1: %2 has no such place</source>
        <extracomment>%1 is a path such as /config/interval, %2 a type</extracomment>
        <translation>/%1: %2 hat keine solche Stelle</translation>
    </message>
    <message>
        <source>text</source>
        <extracomment>A type beside bool, int, int64 and double</extracomment>
        <translation>Text</translation>
    </message>
    <message>
        <source>list of %1</source>
        <extracomment>%1 is the type of its elements</extracomment>
        <translation>Liste von %1</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>number that is no 64-bit integer</source>
        <translation>Zahl, die keine ganze Zahl mit 64 Bit ist</translation>
    </message>
    <message>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>expected %1, got %2</source>
        <extracomment>Both are types</extracomment>
        <translation>erwartet: %1, erhalten: %2</translation>
    </message>
    <message>
        <source>%1 is out of the range of %2</source>
        <extracomment>%1 is a number, %2 a type</extracomment>
        <translation>%1 liegt außerhalb des Bereichs von %2</translation>
    </message>
    <message>
        <source>%1 has no such field</source>
        <extracomment>%1 is a type</extracomment>
        <translation>%1 hat kein solches Feld</translation>
    </message>
    <message>
        <source>key &apos;%1&apos; is there twice</source>
        <translation>der Schlüssel „%1“ ist doppelt vorhanden</translation>
    </message>
    <message>
        <source>%1: $ref is a text and stands alone</source>
        <translation>%1: $ref ist ein Text und steht allein</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; names no file of the contract</source>
        <translation>%1: „%2“ nennt keine Datei des Vertrags</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; leads back to itself</source>
        <translation>%1: „%2“ führt zu sich selbst zurück</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; leads nowhere</source>
        <translation>%1: „%2“ führt ins Leere</translation>
    </message>
    <message>
        <source>%1: a schema is an object</source>
        <translation>%1: ein Schema ist ein Objekt</translation>
    </message>
    <message>
        <source>%1: draft 7 and 2020-12 do not share this keyword</source>
        <translation>%1: Draft 7 und 2020-12 haben dieses Schlüsselwort nicht gemeinsam</translation>
    </message>
    <message>
        <source>%1: no reply has the code 1000</source>
        <translation>%1: keine Antwort hat den Code 1000</translation>
    </message>
    <message>
        <source>%1: operation &apos;%2&apos; is told twice</source>
        <translation>%1: der Vorgang „%2“ ist doppelt beschrieben</translation>
    </message>
    <message>
        <source>no operation in the contract folder %1</source>
        <translation>kein Vorgang im Ordner des Vertrags %1</translation>
    </message>
    <message>
        <source>the port is taken</source>
        <translation>der Port ist belegt</translation>
    </message>
    <message>
        <source>this machine does not have the address</source>
        <translation>dieser Rechner hat die Adresse nicht</translation>
    </message>
    <message>
        <source>no permission for the port</source>
        <translation>keine Berechtigung für den Port</translation>
    </message>
    <message>
        <source>the address is unknown</source>
        <translation>die Adresse ist unbekannt</translation>
    </message>
    <message>
        <source>cannot listen on %1: %2</source>
        <translation>an %1 kann nicht gelauscht werden: %2</translation>
    </message>
    <message>
        <source>platform-emulator: a platform server to develop and test against. It answers the services of the contract with state, over HTTP and HTTPS at once, and prints each address when it listens.</source>
        <translation>platform-emulator: ein Plattformserver zum Entwickeln und Testen. Er beantwortet die Dienste des Vertrags mit Zustand, über HTTP und HTTPS zugleich, und gibt jede Adresse aus, sobald er an ihr lauscht.</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>Address to listen on</source>
        <translation>Adresse, an der gelauscht wird</translation>
    </message>
    <message>
        <source>Port for HTTP, 0 for any free one</source>
        <translation>Port für HTTP, 0 für einen beliebigen freien</translation>
    </message>
    <message>
        <source>Port for HTTPS, 0 for any free one</source>
        <translation>Port für HTTPS, 0 für einen beliebigen freien</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>Token that callers must send as X-Subject-Token (default: see docs/emulator.md); the environment keeps it out of the process list</source>
        <translation>Token, das Aufrufer als X-Subject-Token senden müssen (Vorgabe: siehe docs/emulator.md); aus der Umgebung genommen, erscheint es nicht in der Prozessliste</translation>
    </message>
    <message>
        <source>Token that the control path asks for as X-Subject-Token (default: none)</source>
        <translation>Token, das der Steuerpfad als X-Subject-Token verlangt (Vorgabe: keines)</translation>
    </message>
    <message>
        <source>DIR</source>
        <extracomment>Stands for the value of --contract and of --seed</extracomment>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Folder of the contract (default: ../share/apimodule/contract)</source>
        <translation>Ordner des Vertrags (Vorgabe: ../share/apimodule/contract)</translation>
    </message>
    <message>
        <source>Folder of the seed data (default: ../share/apimodule/seed)</source>
        <translation>Ordner der Anfangsdaten (Vorgabe: ../share/apimodule/seed)</translation>
    </message>
    <message>
        <source>Makes the seeded lists so many times as long</source>
        <translation>Macht die Listen der Anfangsdaten so viele Male so lang</translation>
    </message>
    <message>
        <source>Seconds after which an idle connection, or one whose request does not end, is closed</source>
        <translation>Sekunden, nach denen eine Verbindung geschlossen wird, auf der nichts kommt oder deren Anfrage nicht endet</translation>
    </message>
    <message>
        <source>Refuse the control path /emulator/v1/</source>
        <translation>Den Steuerpfad /emulator/v1/ verweigern</translation>
    </message>
    <message>
        <source>Print a line for each request</source>
        <translation>Für jede Anfrage eine Zeile ausgeben</translation>
    </message>
    <message>
        <source>no seed file in the folder %1</source>
        <translation>keine Datei mit Anfangsdaten im Ordner %1</translation>
    </message>
    <message>
        <source>the server certificate cannot be made</source>
        <translation>das Zertifikat des Servers kann nicht erzeugt werden</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <extracomment>In &quot;Usage: apicall [OPTIONS]&quot;</extracomment>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>Heading over the arguments that are no options</extracomment>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Env</source>
        <extracomment>Before the name of an environment variable, short for &quot;environment&quot;</extracomment>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>TEXT</source>
        <extracomment>Stands for the value of an option</extracomment>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>Heading over the options</extracomment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>not expected: %1</source>
        <translation>nicht erwartet: %1</translation>
    </message>
    <message>
        <source>%1 takes exactly one value</source>
        <translation>%1 nimmt genau einen Wert</translation>
    </message>
    <message>
        <source>cannot be used: %1</source>
        <extracomment>%1 is an option with its value</extracomment>
        <translation>nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>es gibt keinen Ordner %1</translation>
    </message>
</context>
<context>
    <name>catalogue::Call</name>
    <message>
        <source>System configuration</source>
        <translation>Systemkonfiguration</translation>
    </message>
    <message>
        <source>Reads the time synchronisation settings</source>
        <translation>Liest die Einstellungen der Zeitsynchronisation</translation>
    </message>
    <message>
        <source>Writes the time synchronisation settings</source>
        <translation>Schreibt die Einstellungen der Zeitsynchronisation</translation>
    </message>
    <message>
        <source>Synchronises the time of all devices now</source>
        <translation>Gleicht jetzt die Zeit aller Geräte ab</translation>
    </message>
    <message>
        <source>Reads the remote log settings</source>
        <translation>Liest die Einstellungen des entfernten Protokolls</translation>
    </message>
    <message>
        <source>Writes the remote log settings</source>
        <translation>Schreibt die Einstellungen des entfernten Protokolls</translation>
    </message>
    <message>
        <source>Reads the login model of devices</source>
        <translation>Liest das Anmeldeverfahren der Geräte</translation>
    </message>
    <message>
        <source>Writes the login model of devices</source>
        <translation>Schreibt das Anmeldeverfahren der Geräte</translation>
    </message>
    <message>
        <source>Reads whether messages are pushed to the mobile app</source>
        <translation>Liest, ob Nachrichten an die Mobil-App gesendet werden</translation>
    </message>
    <message>
        <source>Switches the push of messages to the mobile app</source>
        <translation>Schaltet das Senden von Nachrichten an die Mobil-App</translation>
    </message>
    <message>
        <source>Reads which outside databases are supported</source>
        <translation>Liest, welche fremden Datenbanken unterstützt werden</translation>
    </message>
    <message>
        <source>Reads one of the client&apos;s settings</source>
        <translation>Liest eine der Einstellungen des Clients</translation>
    </message>
    <message>
        <source>Writes the client&apos;s setting</source>
        <translation>Schreibt die Einstellung des Clients</translation>
    </message>
    <message>
        <source>Reads the AI privacy switch</source>
        <translation>Liest den Schalter für den KI-Datenschutz</translation>
    </message>
    <message>
        <source>Sets the AI privacy switch</source>
        <translation>Setzt den Schalter für den KI-Datenschutz</translation>
    </message>
    <message>
        <source>Device and channel configuration</source>
        <translation>Konfiguration von Geräten und Kanälen</translation>
    </message>
    <message>
        <source>Reads the network settings of a device</source>
        <translation>Liest die Netzwerkeinstellungen eines Geräts</translation>
    </message>
    <message>
        <source>Writes the network settings of a device</source>
        <translation>Schreibt die Netzwerkeinstellungen eines Geräts</translation>
    </message>
    <message>
        <source>Reads the encoding of a channel&apos;s streams</source>
        <translation>Liest die Kodierung der Streams eines Kanals</translation>
    </message>
    <message>
        <source>Writes the encoding of a channel&apos;s streams</source>
        <translation>Schreibt die Kodierung der Streams eines Kanals</translation>
    </message>
    <message>
        <source>Reads what the encoder of a stream offers</source>
        <translation>Liest, was der Kodierer eines Streams bietet</translation>
    </message>
    <message>
        <source>Reads the image adjustment of a channel</source>
        <translation>Liest die Bildeinstellung eines Kanals</translation>
    </message>
    <message>
        <source>Writes the image adjustment of a channel</source>
        <translation>Schreibt die Bildeinstellung eines Kanals</translation>
    </message>
    <message>
        <source>Reads the multicast settings of a channel</source>
        <translation>Liest die Multicast-Einstellungen eines Kanals</translation>
    </message>
    <message>
        <source>Writes the multicast settings of a channel</source>
        <translation>Schreibt die Multicast-Einstellungen eines Kanals</translation>
    </message>
    <message>
        <source>Switches the multicast of one stream</source>
        <translation>Schaltet das Multicast eines Streams</translation>
    </message>
    <message>
        <source>Device control</source>
        <translation>Gerätesteuerung</translation>
    </message>
    <message>
        <source>Starts the discovery of several devices</source>
        <translation>Startet die Suche nach mehreren Geräten</translation>
    </message>
    <message>
        <source>Switches alarm outputs</source>
        <translation>Schaltet Alarmausgänge</translation>
    </message>
    <message>
        <source>Switches audio-light alarms</source>
        <translation>Schaltet Alarme mit Ton und Licht</translation>
    </message>
    <message>
        <source>Lets IP speakers play audio files</source>
        <translation>Lässt IP-Lautsprecher Audiodateien abspielen</translation>
    </message>
    <message>
        <source>Server status warnings</source>
        <translation>Warnungen zum Serverzustand</translation>
    </message>
    <message>
        <source>Asks for a switch-over to the hot-spare server</source>
        <translation>Fragt nach einem Wechsel auf den Ersatzserver</translation>
    </message>
    <message>
        <source>Asks whether only the basic services were started</source>
        <translation>Fragt, ob nur die Basisdienste gestartet wurden</translation>
    </message>
    <message>
        <source>Lists the servers with disks that raise warnings</source>
        <translation>Listet die Server mit auffälligen Festplatten auf</translation>
    </message>
    <message>
        <source>Lists the servers that ran out of memory</source>
        <translation>Listet die Server auf, denen der Speicher ausging</translation>
    </message>
    <message>
        <source>Lists the networks that the system knows</source>
        <translation>Listet die dem System bekannten Netzwerke auf</translation>
    </message>
    <message>
        <source>User groups</source>
        <translation>Benutzergruppen</translation>
    </message>
    <message>
        <source>Lists the user groups</source>
        <translation>Listet die Benutzergruppen auf</translation>
    </message>
    <message>
        <source>Reads one user group</source>
        <translation>Liest eine Benutzergruppe</translation>
    </message>
    <message>
        <source>Creates a user group</source>
        <translation>Legt eine Benutzergruppe an</translation>
    </message>
    <message>
        <source>Renames or describes a user group</source>
        <translation>Benennt oder beschreibt eine Benutzergruppe neu</translation>
    </message>
    <message>
        <source>Moves users into one group</source>
        <translation>Verschiebt Benutzer in eine Gruppe</translation>
    </message>
    <message>
        <source>Empties a user group</source>
        <translation>Leert eine Benutzergruppe</translation>
    </message>
    <message>
        <source>Deletes user groups</source>
        <translation>Löscht Benutzergruppen</translation>
    </message>
    <message>
        <source>Quick commands</source>
        <translation>Schnellbefehle</translation>
    </message>
    <message>
        <source>Creates a quick command</source>
        <translation>Legt einen Schnellbefehl an</translation>
    </message>
    <message>
        <source>Changes a quick command</source>
        <translation>Ändert einen Schnellbefehl</translation>
    </message>
    <message>
        <source>Deletes quick commands</source>
        <translation>Löscht Schnellbefehle</translation>
    </message>
    <message>
        <source>Reads one quick command</source>
        <translation>Liest einen Schnellbefehl</translation>
    </message>
    <message>
        <source>Lists the quick commands</source>
        <translation>Listet die Schnellbefehle auf</translation>
    </message>
    <message>
        <source>Lists the quick commands of an alarm plan</source>
        <translation>Listet die Schnellbefehle eines Alarmplans auf</translation>
    </message>
    <message>
        <source>Alarm and event information</source>
        <translation>Informationen zu Alarmen und Ereignissen</translation>
    </message>
    <message>
        <source>Reads one page of the alarm plans</source>
        <translation>Liest eine Seite der Alarmpläne</translation>
    </message>
    <message>
        <source>Reads what an alarm sets off</source>
        <translation>Liest, was ein Alarm auslöst</translation>
    </message>
    <message>
        <source>Reads the map layer on which an alarm resource lies</source>
        <translation>Liest die Kartenebene, auf der eine Alarmressource liegt</translation>
    </message>
    <message>
        <source>Reads the recorded files of an alarm</source>
        <translation>Liest die aufgezeichneten Dateien eines Alarms</translation>
    </message>
    <message>
        <source>Asks for the state of an audio file task</source>
        <translation>Fragt nach dem Stand eines Auftrags für eine Audiodatei</translation>
    </message>
    <message>
        <source>Lists the event types of plug-in logs</source>
        <translation>Listet die Ereignisarten der Plug-in-Protokolle auf</translation>
    </message>
    <message>
        <source>Lists the general events</source>
        <translation>Listet die allgemeinen Ereignisse auf</translation>
    </message>
    <message>
        <source>Account and web access</source>
        <translation>Konto und Webzugang</translation>
    </message>
    <message>
        <source>Asks where the web page of a channel is reached</source>
        <translation>Fragt, wo die Webseite eines Kanals zu erreichen ist</translation>
    </message>
    <message>
        <source>Asks how to log in to the web page of a channel</source>
        <translation>Fragt, wie man sich an der Webseite eines Kanals anmeldet</translation>
    </message>
    <message>
        <source>Asks whether a channel&apos;s web page may be opened</source>
        <translation>Fragt, ob die Webseite eines Kanals geöffnet werden darf</translation>
    </message>
    <message>
        <source>Asks whether a device&apos;s web page may be opened</source>
        <translation>Fragt, ob die Webseite eines Geräts geöffnet werden darf</translation>
    </message>
    <message>
        <source>Asks whether a menu is available</source>
        <translation>Fragt, ob ein Menü verfügbar ist</translation>
    </message>
    <message>
        <source>Has a token derived from the account&apos;s session</source>
        <translation>Lässt ein Token aus der Sitzung des Kontos ableiten</translation>
    </message>
    <message>
        <source>Reads what the account may use</source>
        <translation>Liest, was das Konto verwenden darf</translation>
    </message>
    <message>
        <source>Asks whether the account may use a function on a channel</source>
        <translation>Fragt, ob das Konto eine Funktion eines Kanals verwenden darf</translation>
    </message>
    <message>
        <source>Counts the devices of each category</source>
        <translation>Zählt die Geräte jeder Kategorie</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Switches the wash function of a channel on</source>
        <translation>Schaltet die Waschfunktion eines Kanals ein</translation>
    </message>
    <message>
        <source>Switches the wash function of several channels on</source>
        <translation>Schaltet die Waschfunktion mehrerer Kanäle ein</translation>
    </message>
    <message>
        <source>Makes the position of a channel its home position</source>
        <translation>Macht die Position eines Kanals zu seiner Grundstellung</translation>
    </message>
    <message>
        <source>Moves a channel to its home position</source>
        <translation>Bewegt einen Kanal in seine Grundstellung</translation>
    </message>
    <message>
        <source>Analysis tasks</source>
        <translation>Analyseaufträge</translation>
    </message>
    <message>
        <source>Marks the file uploads of tasks as failed</source>
        <translation>Kennzeichnet das Hochladen der Dateien von Aufträgen als fehlgeschlagen</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Parken</translation>
    </message>
    <message>
        <source>Lists parking lots with their positions and points</source>
        <translation>Listet Parkplätze mit ihren Positionen und Punkten auf</translation>
    </message>
    <message>
        <source>Lists parking lots with their spaces and channels</source>
        <translation>Listet Parkplätze mit ihren Stellplätzen und Kanälen auf</translation>
    </message>
    <message>
        <source>Lists the organisations of the parking lots</source>
        <translation>Listet die Organisationen der Parkplätze auf</translation>
    </message>
    <message>
        <source>Corrects the plate number of a capture record</source>
        <translation>Berichtigt das Kennzeichen einer Erfassung</translation>
    </message>
    <message>
        <source>Access-control persons and rules</source>
        <translation>Personen und Regeln der Zutrittskontrolle</translation>
    </message>
    <message>
        <source>Reads one page of the persons with access</source>
        <translation>Liest eine Seite der Personen mit Zutritt</translation>
    </message>
    <message>
        <source>Lists the persons managed on a device</source>
        <translation>Listet die auf einem Gerät verwalteten Personen auf</translation>
    </message>
    <message>
        <source>Replaces the persons managed on a device</source>
        <translation>Ersetzt die auf einem Gerät verwalteten Personen</translation>
    </message>
    <message>
        <source>Lists the rules of an access point</source>
        <translation>Listet die Regeln eines Zutrittspunkts auf</translation>
    </message>
    <message>
        <source>Resets the anti-pass time of a person</source>
        <translation>Setzt die Antipassback-Zeit einer Person zurück</translation>
    </message>
    <message>
        <source>Cards, intercom and alarm hosts</source>
        <translation>Karten, Sprechanlagen und Alarmzentralen</translation>
    </message>
    <message>
        <source>Reads the card configuration</source>
        <translation>Liest die Kartenkonfiguration</translation>
    </message>
    <message>
        <source>Writes the card configuration</source>
        <translation>Schreibt die Kartenkonfiguration</translation>
    </message>
    <message>
        <source>Reads one page of the devices that failed to take the card configuration</source>
        <translation>Liest eine Seite der Geräte, die die Kartenkonfiguration nicht übernommen haben</translation>
    </message>
    <message>
        <source>Sends the card configuration to those devices again</source>
        <translation>Sendet diesen Geräten die Kartenkonfiguration erneut</translation>
    </message>
    <message>
        <source>Deletes contacts of an outdoor station</source>
        <translation>Löscht Kontakte einer Außenstation</translation>
    </message>
    <message>
        <source>Has a snapshot taken of an alarm host&apos;s zone</source>
        <translation>Lässt ein Bild von einem Bereich einer Alarmzentrale aufnehmen</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Lists the alert types</source>
        <translation>Listet die Alarmarten auf</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a channel</source>
        <translation>Liest die Wartungsansicht eines Kanals</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a device</source>
        <translation>Liest die Wartungsansicht eines Geräts</translation>
    </message>
</context>
</TS>
