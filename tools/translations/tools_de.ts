<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Texts</name>
    <message>
        <source>cannot read %1</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot open %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 is not valid JSON: syntax error at byte %2</source>
        <extracomment>%1 is the name of the input, %2 a number</extracomment>
        <translation>%1 ist kein gültiges JSON: Syntaxfehler bei Byte %2</translation>
    </message>
    <message>
        <source>a JSON object must be the only argument</source>
        <translation>ein JSON-Objekt muss das einzige Argument sein</translation>
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
        <source>first byte after %1 ms, complete after %2 ms</source>
        <extracomment>Times in milliseconds</extracomment>
        <translation>erstes Byte nach %1 ms, vollständig nach %2 ms</translation>
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
        <source>unknown call &quot;%1&quot;; did you mean &quot;%2&quot;?</source>
        <translation>unbekannter Aufruf „%1“; meinten Sie „%2“?</translation>
    </message>
    <message>
        <source>unknown call &quot;%1&quot;; run &apos;apicall --list&apos; for all calls</source>
        <translation>unbekannter Aufruf „%1“; „apicall --list“ zeigt alle Aufrufe</translation>
    </message>
    <message>
        <source>the server reports %1</source>
        <extracomment>%1 is the server&apos;s text in quotation marks</extracomment>
        <translation>der Server meldet %1</translation>
    </message>
    <message>
        <source>the reply has no valid value for %1</source>
        <extracomment>%1 is a key of a JSON object in quotation marks</extracomment>
        <translation>die Antwort enthält keinen gültigen Wert für %1</translation>
    </message>
    <message>
        <source>the server does not use TLS on this port; is it the port for http://?</source>
        <translation>der Server verwendet auf diesem Port kein TLS; ist es der Port für http://?</translation>
    </message>
    <message>
        <source>--server is missing</source>
        <translation>--server fehlt</translation>
    </message>
    <message>
        <source>--pin and --ca require an https:// server</source>
        <translation>--pin und --ca setzen einen Server mit https:// voraus</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of this language, for the texts of error codes</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 failed with %2: %3</source>
        <extracomment>%1 is the call, %2 a code, %3 its text</extracomment>
        <translation>%1 fehlgeschlagen mit Code %2: %3</translation>
    </message>
    <message>
        <source>--merge: %1 has no matching read call</source>
        <extracomment>%1 is a call</extracomment>
        <translation>--merge: zu %1 gibt es keinen passenden Leseaufruf</translation>
    </message>
    <message>
        <source>cannot write the result</source>
        <translation>das Ergebnis kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>no call given; run &apos;apicall --help&apos; for usage</source>
        <translation>kein Aufruf angegeben; „apicall --help“ zeigt die Verwendung</translation>
    </message>
    <message>
        <source>Arguments of a call:
  name=value        one argument; text is taken literally, all other types are JSON
  name/field=value  one field of a record; name/0 is the first element of a list
  {&quot;name&quot;: value}   all arguments as one JSON object; @FILE reads it from a file, - from standard input

Examples:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Standard output contains only the result, null for a call without one. Log lines and errors go to standard error.
Exit status: 0 success, 1 failed call, 2 usage error.</source>
        <translation>Argumente eines Aufrufs:
  Name=Wert         ein Argument; Text wird wörtlich übernommen, alle anderen Typen sind JSON
  Name/Feld=Wert    ein Feld eines Datensatzes; Name/0 ist das erste Element einer Liste
  {&quot;Name&quot;: Wert}    alle Argumente als ein JSON-Objekt; @DATEI liest es aus einer Datei, - von der Standardeingabe

Beispiele:
  $ apicall --list
  $ apicall --help BRMS.GetLocalSetting
  $ apicall --server https://127.0.0.1:8443 BRMS.GetLocalSetting settingType=3
  $ apicall --server https://127.0.0.1:8443 --merge BRMS.SetTimeSyncConfig config/interval=30

Die Standardausgabe enthält nur das Ergebnis, null bei einem Aufruf ohne Ergebnis. Protokollzeilen und Fehler gehen an die Standardfehlerausgabe.
Rückgabewert: 0 Erfolg, 1 Aufruf fehlgeschlagen, 2 falsche Verwendung.</translation>
    </message>
    <message>
        <source>Makes one call to a platform server and prints the result as JSON.</source>
        <translation>Führt einen Aufruf an einem Plattformserver aus und gibt das Ergebnis als JSON aus.</translation>
    </message>
    <message>
        <source>Print this help, or describe the arguments and result of CALL</source>
        <translation>Diese Hilfe ausgeben oder Argumente und Ergebnis von CALL beschreiben</translation>
    </message>
    <message>
        <source>Print the version</source>
        <translation>Version ausgeben</translation>
    </message>
    <message>
        <source>List the calls</source>
        <translation>Aufrufe auflisten</translation>
    </message>
    <message>
        <source>Print only names: those of the calls, or of the arguments of CALL</source>
        <translation>Nur Namen ausgeben: die der Aufrufe oder die der Argumente von CALL</translation>
    </message>
    <message>
        <source>Write log lines only if the call fails</source>
        <translation>Protokollzeilen nur ausgeben, wenn der Aufruf fehlschlägt</translation>
    </message>
    <message>
        <source>Write request and reply to standard error, with the token masked</source>
        <translation>Anfrage und Antwort mit verdecktem Token auf die Standardfehlerausgabe schreiben</translation>
    </message>
    <message>
        <source>Print the request, with the token masked, without sending it</source>
        <translation>Die Anfrage mit verdecktem Token ausgeben, ohne sie zu senden</translation>
    </message>
    <message>
        <source>For a call that writes a record: read the current record, apply each ARGUMENT, and write the result back</source>
        <translation>Bei einem Schreibaufruf: den aktuellen Datensatz lesen, jedes ARGUMENT darin setzen und das Ergebnis zurückschreiben</translation>
    </message>
    <message>
        <source>Platform server: https://host[:port] or http://host[:port]</source>
        <translation>Plattformserver: https://Host[:Port] oder http://Host[:Port]</translation>
    </message>
    <message>
        <source>Session token; pass it in the environment to keep it out of the process list</source>
        <translation>Sitzungstoken; als Umgebungsvariable übergeben, erscheint es nicht in der Prozessliste</translation>
    </message>
    <message>
        <source>Trust only servers with this SHA-256 digest of their certificate or public key; repeatable</source>
        <translation>Nur Servern vertrauen, deren Zertifikat oder öffentlicher Schlüssel diesen SHA-256-Fingerabdruck hat; mehrfach möglich</translation>
    </message>
    <message>
        <source>DIGEST</source>
        <extracomment>Stands for the value of --pin</extracomment>
        <translation>FINGERABDRUCK</translation>
    </message>
    <message>
        <source>Trust only servers whose certificate was signed by an authority in this PEM file; repeatable</source>
        <translation>Nur Servern vertrauen, deren Zertifikat von einer Zertifizierungsstelle aus dieser PEM-Datei signiert ist; mehrfach möglich</translation>
    </message>
    <message>
        <source>FILE</source>
        <extracomment>Stands for the value of --ca</extracomment>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>Language of error texts and of the server&apos;s texts, which are English by default</source>
        <translation>Sprache der Fehlertexte und der Texte des Servers, die sonst englisch sind</translation>
    </message>
    <message>
        <source>Server identifier passed to the call</source>
        <translation>Serverkennung, die dem Aufruf übergeben wird</translation>
    </message>
    <message>
        <source>Time-out of the call, 10 s by default</source>
        <translation>Zeitlimit des Aufrufs, sonst 10 s</translation>
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
        <source>not a valid URL</source>
        <translation>keine gültige URL</translation>
    </message>
    <message>
        <source>must begin with https:// or http://</source>
        <translation>muss mit https:// oder http:// beginnen</translation>
    </message>
    <message>
        <source>host is missing</source>
        <translation>der Host fehlt</translation>
    </message>
    <message>
        <source>only a host and a port may follow the scheme</source>
        <translation>nach dem Schema sind nur Host und Port erlaubt</translation>
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
        <source>the file contains no PEM certificate</source>
        <translation>die Datei enthält kein PEM-Zertifikat</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; it takes no arguments</source>
        <extracomment>%1 is a call</extracomment>
        <translation>%1 hat kein Argument „%2“; der Aufruf hat keine Argumente</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; did you mean &quot;%3&quot;?</source>
        <extracomment>%1 is a call, %3 the name of one of its arguments</extracomment>
        <translation>%1 hat kein Argument „%2“; meinten Sie „%3“?</translation>
    </message>
    <message>
        <source>%1 has no argument &quot;%2&quot;; its arguments are: %3</source>
        <extracomment>%1 is a call, %3 the names of its arguments</extracomment>
        <translation>%1 hat kein Argument „%2“; die Argumente sind: %3</translation>
    </message>
    <message>
        <source>the arguments of %1 must be a JSON object with the argument names as keys</source>
        <translation>die Argumente von %1 müssen ein JSON-Objekt mit den Argumentnamen als Schlüsseln sein</translation>
    </message>
    <message>
        <source>%1 requires the argument &quot;%2&quot; (%3)</source>
        <extracomment>%1 is a call, %3 a type</extracomment>
        <translation>%1 benötigt das Argument „%2“ (%3)</translation>
    </message>
    <message>
        <source>%1, which runs first, requires &quot;%2&quot; of %3</source>
        <extracomment>%1 is the call that reads the record, %2 an argument, %3 the call that the user runs</extracomment>
        <translation>%1 wird zuerst ausgeführt und benötigt „%2“ von %3</translation>
    </message>
    <message>
        <source>/%1: no such field or element in %2</source>
        <extracomment>%1 is a path such as /config/interval, %2 a type</extracomment>
        <translation>/%1: kein solches Feld oder Element in %2</translation>
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
        <source>number that is not a 64-bit integer</source>
        <translation>Zahl, die keine 64-Bit-Ganzzahl ist</translation>
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
        <translation>%1 erwartet, %2 erhalten</translation>
    </message>
    <message>
        <source>%1 is out of range for %2</source>
        <extracomment>%1 is a number, %2 a type</extracomment>
        <translation>%1 liegt außerhalb des Wertebereichs von %2</translation>
    </message>
    <message>
        <source>%1 has no such field</source>
        <extracomment>%1 is a type</extracomment>
        <translation>%1 hat kein solches Feld</translation>
    </message>
    <message>
        <source>duplicate key &apos;%1&apos;</source>
        <translation>doppelter Schlüssel „%1“</translation>
    </message>
    <message>
        <source>%1: $ref must be a string and the only key</source>
        <translation>%1: $ref muss eine Zeichenkette und der einzige Schlüssel sein</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; does not refer to a file of the contract</source>
        <translation>%1: „%2“ verweist auf keine Datei des Vertrags</translation>
    </message>
    <message>
        <source>%1: circular reference &apos;%2&apos;</source>
        <translation>%1: zirkulärer Verweis „%2“</translation>
    </message>
    <message>
        <source>%1: the target of &apos;%2&apos; does not exist</source>
        <translation>%1: das Ziel von „%2“ existiert nicht</translation>
    </message>
    <message>
        <source>%1: a schema must be an object or a boolean</source>
        <translation>%1: ein Schema muss ein Objekt oder ein Wahrheitswert sein</translation>
    </message>
    <message>
        <source>%1: JSON Schema draft 7 and 2020-12 do not both support this keyword</source>
        <translation>%1: JSON Schema Draft 7 und 2020-12 unterstützen dieses Schlüsselwort nicht beide</translation>
    </message>
    <message>
        <source>%1: no reply with code 1000</source>
        <translation>%1: keine Antwort mit Code 1000</translation>
    </message>
    <message>
        <source>%1: operation &apos;%2&apos; is defined twice</source>
        <translation>%1: die Operation „%2“ ist doppelt definiert</translation>
    </message>
    <message>
        <source>the contract folder %1 contains no operation</source>
        <translation>der Vertragsordner %1 enthält keine Operation</translation>
    </message>
    <message>
        <source>the port is in use</source>
        <translation>der Port ist belegt</translation>
    </message>
    <message>
        <source>this machine has no such address</source>
        <translation>dieser Rechner hat keine solche Adresse</translation>
    </message>
    <message>
        <source>permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>unknown address</source>
        <translation>unbekannte Adresse</translation>
    </message>
    <message>
        <source>cannot listen on %1: %2</source>
        <translation>auf %1 können keine Verbindungen angenommen werden: %2</translation>
    </message>
    <message>
        <source>platform-emulator: a stateful platform server for development and tests. It serves the contract over both HTTP and HTTPS and prints each address when it starts to listen.</source>
        <translation>platform-emulator: ein zustandsbehafteter Plattformserver für Entwicklung und Tests. Er bedient den Vertrag über HTTP und HTTPS und gibt jede Adresse aus, sobald er dort Verbindungen annimmt.</translation>
    </message>
    <message>
        <source>Print this help</source>
        <translation>Diese Hilfe ausgeben</translation>
    </message>
    <message>
        <source>Address to listen on</source>
        <translation>Adresse, unter der Verbindungen angenommen werden</translation>
    </message>
    <message>
        <source>Port for HTTP; 0 selects a free port</source>
        <translation>Port für HTTP; 0 wählt einen freien Port</translation>
    </message>
    <message>
        <source>Port for HTTPS; 0 selects a free port</source>
        <translation>Port für HTTPS; 0 wählt einen freien Port</translation>
    </message>
    <message>
        <source>must not be empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message>
        <source>Token that clients must send as X-Subject-Token (default: see docs/emulator.md); pass it in the environment to keep it out of the process list</source>
        <translation>Token, das Clients als X-Subject-Token senden müssen (Vorgabe: siehe docs/emulator.md); als Umgebungsvariable übergeben, erscheint es nicht in der Prozessliste</translation>
    </message>
    <message>
        <source>Token that the control path requires as X-Subject-Token (default: none)</source>
        <translation>Token, das der Steuerpfad als X-Subject-Token verlangt (Vorgabe: keines)</translation>
    </message>
    <message>
        <source>DIR</source>
        <extracomment>Stands for the value of --contract and of --seed</extracomment>
        <translation>ORDNER</translation>
    </message>
    <message>
        <source>Folder of the contract (default: ../share/apimodule/contract)</source>
        <translation>Ordner mit dem Vertrag (Vorgabe: ../share/apimodule/contract)</translation>
    </message>
    <message>
        <source>Folder of the seed data (default: ../share/apimodule/seed)</source>
        <translation>Ordner mit den Anfangsdaten (Vorgabe: ../share/apimodule/seed)</translation>
    </message>
    <message>
        <source>Factor for the length of the seeded lists</source>
        <translation>Faktor für die Länge der Listen in den Anfangsdaten</translation>
    </message>
    <message>
        <source>Seconds before an idle connection or an incomplete request is closed</source>
        <translation>Sekunden, nach denen eine inaktive Verbindung oder eine unvollständige Anfrage beendet wird</translation>
    </message>
    <message>
        <source>Disable the control path /emulator/v1/</source>
        <translation>Den Steuerpfad /emulator/v1/ abschalten</translation>
    </message>
    <message>
        <source>Print a line for each request</source>
        <translation>Für jede Anfrage eine Zeile ausgeben</translation>
    </message>
    <message>
        <source>folder %1 contains no seed file</source>
        <translation>der Ordner %1 enthält keine Datei mit Anfangsdaten</translation>
    </message>
    <message>
        <source>cannot create the server certificate</source>
        <translation>das Serverzertifikat kann nicht erzeugt werden</translation>
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
        <extracomment>Heading over the arguments other than options</extracomment>
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
        <source>unexpected argument: %1</source>
        <translation>unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>%1 requires exactly one value</source>
        <translation>%1 erfordert genau einen Wert</translation>
    </message>
    <message>
        <source>invalid value: %1</source>
        <extracomment>%1 is an option with its value</extracomment>
        <translation>ungültiger Wert: %1</translation>
    </message>
    <message>
        <source>%1 is not an integer from %2 to %3</source>
        <translation>%1 ist keine ganze Zahl von %2 bis %3</translation>
    </message>
    <message>
        <source>folder %1 does not exist</source>
        <translation>der Ordner %1 existiert nicht</translation>
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
        <translation>Liest die Einstellungen der Zeitsynchronisierung</translation>
    </message>
    <message>
        <source>Writes the time synchronisation settings</source>
        <translation>Schreibt die Einstellungen der Zeitsynchronisierung</translation>
    </message>
    <message>
        <source>Synchronises the time of all devices now</source>
        <translation>Synchronisiert jetzt die Uhrzeit aller Geräte</translation>
    </message>
    <message>
        <source>Reads the remote log settings</source>
        <translation>Liest die Einstellungen für den Protokollserver</translation>
    </message>
    <message>
        <source>Writes the remote log settings</source>
        <translation>Schreibt die Einstellungen für den Protokollserver</translation>
    </message>
    <message>
        <source>Reads the login model of devices</source>
        <translation>Liest das Anmeldemodell der Geräte</translation>
    </message>
    <message>
        <source>Writes the login model of devices</source>
        <translation>Schreibt das Anmeldemodell der Geräte</translation>
    </message>
    <message>
        <source>Reads whether messages are pushed to the mobile app</source>
        <translation>Liest, ob Push-Nachrichten an die Mobil-App gesendet werden</translation>
    </message>
    <message>
        <source>Enables or disables push messages to the mobile app</source>
        <translation>Schaltet Push-Nachrichten an die Mobil-App ein oder aus</translation>
    </message>
    <message>
        <source>Lists the supported external databases</source>
        <translation>Listet die unterstützten externen Datenbanken auf</translation>
    </message>
    <message>
        <source>Reads one client setting</source>
        <translation>Liest eine Einstellung des Clients</translation>
    </message>
    <message>
        <source>Writes the client setting that was read last</source>
        <translation>Schreibt die zuletzt gelesene Einstellung des Clients</translation>
    </message>
    <message>
        <source>Reads the AI privacy switch</source>
        <translation>Liest, ob der KI-Datenschutz eingeschaltet ist</translation>
    </message>
    <message>
        <source>Sets the AI privacy switch</source>
        <translation>Schaltet den KI-Datenschutz ein oder aus</translation>
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
        <source>Reads the encoding settings of a channel&apos;s streams</source>
        <translation>Liest die Kodierungseinstellungen der Streams eines Kanals</translation>
    </message>
    <message>
        <source>Writes the encoding settings of a channel&apos;s streams</source>
        <translation>Schreibt die Kodierungseinstellungen der Streams eines Kanals</translation>
    </message>
    <message>
        <source>Reads the encoding capability of a stream</source>
        <translation>Liest die Kodierungsmöglichkeiten eines Streams</translation>
    </message>
    <message>
        <source>Reads the image settings of a channel</source>
        <translation>Liest die Bildeinstellungen eines Kanals</translation>
    </message>
    <message>
        <source>Writes the image settings of a channel</source>
        <translation>Schreibt die Bildeinstellungen eines Kanals</translation>
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
        <source>Enables or disables multicast for one stream</source>
        <translation>Schaltet Multicast für einen Stream ein oder aus</translation>
    </message>
    <message>
        <source>Device control</source>
        <translation>Gerätesteuerung</translation>
    </message>
    <message>
        <source>Starts discovery of several devices</source>
        <translation>Startet die Suche nach mehreren Geräten</translation>
    </message>
    <message>
        <source>Switches alarm outputs on or off</source>
        <translation>Schaltet Alarmausgänge ein oder aus</translation>
    </message>
    <message>
        <source>Switches audio-light alarms on or off</source>
        <translation>Schaltet akustisch-optische Alarmgeber ein oder aus</translation>
    </message>
    <message>
        <source>Plays audio files on IP speakers</source>
        <translation>Gibt Audiodateien auf IP-Lautsprechern wieder</translation>
    </message>
    <message>
        <source>Server status warnings</source>
        <translation>Warnungen zum Serverstatus</translation>
    </message>
    <message>
        <source>Checks for a failover to the hot-spare server</source>
        <translation>Prüft, ob auf den Hot-Spare-Server umgeschaltet wurde</translation>
    </message>
    <message>
        <source>Checks whether the server started with only its basic services</source>
        <translation>Prüft, ob der Server nur mit den Basisdiensten gestartet ist</translation>
    </message>
    <message>
        <source>Lists the servers with disk warnings</source>
        <translation>Listet die Server mit Festplattenwarnungen auf</translation>
    </message>
    <message>
        <source>Lists the servers that ran out of memory</source>
        <translation>Listet die Server mit erschöpftem Arbeitsspeicher auf</translation>
    </message>
    <message>
        <source>Lists the networks known to the system</source>
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
        <source>Updates the name and description of a user group</source>
        <translation>Ändert Namen und Beschreibung einer Benutzergruppe</translation>
    </message>
    <message>
        <source>Moves users to a group</source>
        <translation>Verschiebt Benutzer in eine Gruppe</translation>
    </message>
    <message>
        <source>Removes all users from a group</source>
        <translation>Entfernt alle Benutzer aus einer Gruppe</translation>
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
        <source>Updates a quick command</source>
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
        <source>Lists the channels linked to an alarm</source>
        <translation>Listet die mit einem Alarm verknüpften Kanäle auf</translation>
    </message>
    <message>
        <source>Reads the map layer of an alarm resource</source>
        <translation>Liest die Kartenebene einer Alarmressource</translation>
    </message>
    <message>
        <source>Lists the recorded files of an alarm</source>
        <translation>Listet die aufgezeichneten Dateien eines Alarms auf</translation>
    </message>
    <message>
        <source>Reads the progress of an audio file task</source>
        <translation>Liest den Fortschritt eines Audiodatei-Auftrags</translation>
    </message>
    <message>
        <source>Lists the event types of plug-in logs</source>
        <translation>Listet die Ereignistypen der Plug-in-Protokolle auf</translation>
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
        <source>Reads the address of a channel&apos;s web page</source>
        <translation>Liest die Adresse der Webseite eines Kanals</translation>
    </message>
    <message>
        <source>Reads the credentials for a channel&apos;s web page</source>
        <translation>Liest die Zugangsdaten für die Webseite eines Kanals</translation>
    </message>
    <message>
        <source>Checks whether web access is enabled for a channel</source>
        <translation>Prüft, ob der Webzugang für einen Kanal aktiviert ist</translation>
    </message>
    <message>
        <source>Checks whether web access is enabled for a device</source>
        <translation>Prüft, ob der Webzugang für ein Gerät aktiviert ist</translation>
    </message>
    <message>
        <source>Checks whether a menu is available</source>
        <translation>Prüft, ob ein Menü verfügbar ist</translation>
    </message>
    <message>
        <source>Derives a token from the account&apos;s session</source>
        <translation>Leitet ein Token aus der Sitzung des Kontos ab</translation>
    </message>
    <message>
        <source>Reads the account&apos;s permissions</source>
        <translation>Liest die Berechtigungen des Kontos</translation>
    </message>
    <message>
        <source>Checks whether the account may use a function on a channel</source>
        <translation>Prüft, ob das Konto eine Funktion eines Kanals verwenden darf</translation>
    </message>
    <message>
        <source>Counts devices by category</source>
        <translation>Zählt die Geräte nach Kategorie</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Turns on the wash function of a channel</source>
        <translation>Schaltet die Waschfunktion eines Kanals ein</translation>
    </message>
    <message>
        <source>Turns on the wash function of several channels</source>
        <translation>Schaltet die Waschfunktion mehrerer Kanäle ein</translation>
    </message>
    <message>
        <source>Stores the current camera position as the home position</source>
        <translation>Speichert die aktuelle Kameraposition als Grundstellung</translation>
    </message>
    <message>
        <source>Moves the camera to its home position</source>
        <translation>Fährt die Kamera in ihre Grundstellung</translation>
    </message>
    <message>
        <source>Analysis tasks</source>
        <translation>Analyseaufträge</translation>
    </message>
    <message>
        <source>Marks the file uploads of analysis tasks as failed</source>
        <translation>Kennzeichnet die Datei-Uploads von Analyseaufträgen als fehlgeschlagen</translation>
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
        <source>Corrects the plate number of a vehicle capture record</source>
        <translation>Berichtigt das Kennzeichen einer Fahrzeugerfassung</translation>
    </message>
    <message>
        <source>Access-control persons and rules</source>
        <translation>Personen und Regeln der Zutrittskontrolle</translation>
    </message>
    <message>
        <source>Reads one page of the authorised persons</source>
        <translation>Liest eine Seite der zutrittsberechtigten Personen</translation>
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
        <source>Resets the anti-passback time of a person</source>
        <translation>Setzt die Anti-Passback-Zeit einer Person zurück</translation>
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
        <source>Reads one page of the devices where issuing the card configuration failed</source>
        <translation>Liest eine Seite der Geräte, an die die Kartenkonfiguration nicht ausgegeben werden konnte</translation>
    </message>
    <message>
        <source>Reissues the card configuration to the failed devices</source>
        <translation>Gibt die Kartenkonfiguration erneut an die fehlgeschlagenen Geräte aus</translation>
    </message>
    <message>
        <source>Deletes contacts of an outdoor station</source>
        <translation>Löscht Kontakte einer Außenstation</translation>
    </message>
    <message>
        <source>Requests a snapshot of an alarm host&apos;s zone</source>
        <translation>Fordert ein Bild eines Bereichs einer Alarmzentrale an</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Lists the alert types</source>
        <translation>Listet die Warnungstypen auf</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a channel</source>
        <translation>Liest die Wartungsdaten eines Kanals</translation>
    </message>
    <message>
        <source>Reads the maintenance view of a device</source>
        <translation>Liest die Wartungsdaten eines Geräts</translation>
    </message>
</context>
</TS>
