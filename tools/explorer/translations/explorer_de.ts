<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>explorer::ArgumentForm</name>
    <message>
        <source>Copy as JSON</source>
        <translation>Als JSON kopieren</translation>
    </message>
    <message>
        <source>Paste JSON</source>
        <translation>JSON einfügen</translation>
    </message>
    <message>
        <source>Choose a call to see its arguments here.</source>
        <translation>Wählen Sie einen Aufruf, um hier seine Argumente zu sehen.</translation>
    </message>
    <message>
        <source>This call takes no arguments.</source>
        <translation>Dieser Aufruf hat keine Argumente.</translation>
    </message>
    <message>
        <source>not valid JSON: %1 at byte %2</source>
        <translation>kein gültiges JSON: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>Cannot paste the clipboard: %1</source>
        <translation>Der Inhalt der Zwischenablage kann nicht eingefügt werden: %1</translation>
    </message>
    <message>
        <source>Edit as JSON</source>
        <translation>Als JSON bearbeiten</translation>
    </message>
    <message>
        <source>Arguments as JSON</source>
        <translation>Argumente als JSON</translation>
    </message>
    <message>
        <source>Invalid arguments: %1</source>
        <translation>Ungültige Argumente: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Runs %1 and fills in its result</source>
        <translation>Führt %1 aus und übernimmt das Ergebnis</translation>
    </message>
    <message>
        <source>Fill fro&amp;m the server</source>
        <translation>Vo&amp;m Server laden</translation>
    </message>
</context>
<context>
    <name>explorer::CallHeader</name>
    <message>
        <source>Copy the &amp;path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>No call selected</source>
        <translation>Kein Aufruf gewählt</translation>
    </message>
    <message>
        <source>Choose a call on the left to fill it in and run it.</source>
        <translation>Wählen Sie links einen Aufruf, um ihn auszufüllen und auszuführen.</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
</context>
<context>
    <name>explorer::CallPanel</name>
    <message>
        <source>Basic resources</source>
        <translation>Basisressourcen</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>Analyse</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>Parken</translation>
    </message>
    <message>
        <source>Access control</source>
        <translation>Zutrittskontrolle</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Filter by name, path or key</source>
        <translation>Name, Pfad, Schlüssel</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Aufrufe</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>No matching calls</source>
        <translation>Kein passender Aufruf</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n Aufruf</numerusform>
            <numerusform>%n Aufrufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::CertificateLook</name>
    <message>
        <source>The server does not respond</source>
        <translation>Der Server antwortet nicht</translation>
    </message>
</context>
<context>
    <name>explorer::CheckedEditor</name>
    <message>
        <source>e.g. %1</source>
        <translation>z. B. %1</translation>
    </message>
</context>
<context>
    <name>explorer::CodeView</name>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Characters %1 to %2 of %3; search and copy cover the whole text.</source>
        <extracomment>%1 and %2 are the first and the last character shown, %3 is the number of all</extracomment>
        <translation>Zeichen %1 bis %2 von %3; Suchen und Kopieren erfassen den ganzen Text.</translation>
    </message>
</context>
<context>
    <name>explorer::CommandLine</name>
    <message>
        <source>Makes any APIModule call from a graphical interface.</source>
        <translation>Führt beliebige APIModule-Aufrufe in einer grafischen Oberfläche aus.</translation>
    </message>
    <message>
        <source>Select and start the emulator.</source>
        <translation>Den Emulator auswählen und starten.</translation>
    </message>
    <message>
        <source>Show this call, such as BRMS.GetLocalSetting.</source>
        <translation>Diesen Aufruf anzeigen, zum Beispiel BRMS.GetLocalSetting.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Print the time until the window is first painted, then exit.</source>
        <translation>Die Zeit bis zum ersten Zeichnen des Fensters ausgeben und das Programm beenden.</translation>
    </message>
</context>
<context>
    <name>explorer::CompareDialog</name>
    <message>
        <source>Compare two runs</source>
        <translation>Zwei Läufe vergleichen</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Kein Unterschied</translation>
    </message>
    <message numerus="yes">
        <source>%n more character(s)</source>
        <translation>
            <numerusform>noch %n Zeichen</numerusform>
            <numerusform>noch %n Zeichen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorControl</name>
    <message>
        <source>The emulator is not running.</source>
        <translation>Der Emulator läuft nicht.</translation>
    </message>
    <message>
        <source>%1 is too much to show here.</source>
        <translation>%1 sind zu viel für die Anzeige.</translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorPanel</name>
    <message>
        <source>Re&amp;quests</source>
        <translation>Anfra&amp;gen</translation>
    </message>
    <message>
        <source>&amp;Faults</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>St&amp;ate</source>
        <translation>&amp;Zustand</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>Sta&amp;rt</translation>
    </message>
    <message>
        <source>The emulator is starting</source>
        <translation>Der Emulator startet</translation>
    </message>
    <message>
        <source>The emulator is not running. Press its button to start it, or make a call.</source>
        <translation>Der Emulator läuft nicht. Er startet über seine Schaltfläche oder mit dem ersten Aufruf.</translation>
    </message>
</context>
<context>
    <name>explorer::EmulatorRequests</name>
    <message>
        <source>No reply</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ausstehend</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>explorer::FaultForm</name>
    <message>
        <source>Delayed reply</source>
        <translation>Verzögerte Antwort</translation>
    </message>
    <message>
        <source>HTTP status</source>
        <translation>HTTP-Status</translation>
    </message>
    <message>
        <source>Envelope with a code</source>
        <translation>Envelope mit Code</translation>
    </message>
    <message>
        <source>Empty reply</source>
        <translation>Leere Antwort</translation>
    </message>
    <message>
        <source>First half of the body</source>
        <translation>Erste Hälfte des Rumpfs</translation>
    </message>
    <message>
        <source>Reply that is not JSON</source>
        <translation>Antwort, die kein JSON ist</translation>
    </message>
    <message>
        <source>Reply with this body</source>
        <translation>Antwort mit diesem Rumpf</translation>
    </message>
    <message>
        <source>Large reply</source>
        <translation>Große Antwort</translation>
    </message>
    <message>
        <source>Slow reply</source>
        <translation>Langsame Antwort</translation>
    </message>
    <message>
        <source>Connection closed without a reply</source>
        <translation>Verbindung ohne Antwort geschlossen</translation>
    </message>
    <message>
        <source>Connection closed mid-reply</source>
        <translation>Verbindung mitten in der Antwort geschlossen</translation>
    </message>
    <message>
        <source>Connection reset</source>
        <translation>Verbindung zurückgesetzt</translation>
    </message>
    <message>
        <source>No reply</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Every call</source>
        <translation>Alle Aufrufe</translation>
    </message>
    <message>
        <source>Every method</source>
        <translation>Alle Methoden</translation>
    </message>
    <message>
        <source>Every path</source>
        <translation>Alle Pfade</translation>
    </message>
    <message>
        <source>Beginning of the request path, including the query</source>
        <translation>Anfang des Anfragepfads, einschließlich Query-String</translation>
    </message>
    <message>
        <source>With 2, the first matching call passes</source>
        <translation>2 lässt den ersten passenden Aufruf durch</translation>
    </message>
    <message>
        <source>Until removed</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Starts at match</source>
        <translation>Ab Treffer</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> Byte</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Datenrate</translation>
    </message>
    <message>
        <source> bytes/s</source>
        <translation> Byte/s</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Headers</source>
        <translation>Kopfzeilen</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Rumpf</translation>
    </message>
</context>
<context>
    <name>explorer::FaultsPage</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <translation>A&amp;lle entfernen</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>Hinz&amp;ufügen</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Aufrufe</translation>
    </message>
    <message>
        <source>Skips left</source>
        <translation>Noch durchlassen</translation>
    </message>
    <message>
        <source>Times left</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Until removed</source>
        <translation>Unbegrenzt</translation>
    </message>
</context>
<context>
    <name>explorer::Feed</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Verbose</source>
        <translation>Ausführlich</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>Fatal</translation>
    </message>
</context>
<context>
    <name>explorer::FeedPanel</name>
    <message>
        <source>No log lines</source>
        <translation>Keine Protokollzeilen</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>Keine Benachrichtigungen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>All levels</source>
        <translation>Alle Stufen</translation>
    </message>
    <message>
        <source>%1 and above</source>
        <translation>Ab %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>explorer::FindBar</name>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>Vorheriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>Im Text suchen</translation>
    </message>
    <message>
        <source>Find (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>No match</source>
        <extracomment>%1 is the number of the current match, %2 that of all</extracomment>
        <translation>Kein Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>explorer::History</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>How a run ended: %1 is its text, %2 the number of its result</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>explorer::HistoryPanel</name>
    <message>
        <source>No runs</source>
        <translation>Keine Läufe</translation>
    </message>
    <message>
        <source>Run again</source>
        <translation>Erneut</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Load the arguments into the form</source>
        <translation>Lädt die Argumente ins Formular</translation>
    </message>
    <message>
        <source>Exports the selected runs as an HTTP archive (HAR) or as a C++ test</source>
        <translation>Exportiert die ausgewählten Läufe als HTTP-Archiv (HAR) oder als C++-Test</translation>
    </message>
    <message>
        <source>History size limit</source>
        <translation>Maximale Größe des Verlaufs</translation>
    </message>
    <message>
        <source>Above this size, the oldest runs are dropped</source>
        <translation>Oberhalb dieser Größe werden die ältesten Läufe entfernt</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Save to file</source>
        <translation>In Datei sichern</translation>
    </message>
    <message>
        <source>Keeps the runs for the next start, without tokens</source>
        <translation>Speichert die Läufe ohne Tokens für den nächsten Start</translation>
    </message>
    <message>
        <source>%1 of</source>
        <extracomment>%1 megabytes are taken; a field with the limit follows</extracomment>
        <translation>%1 von</translation>
    </message>
    <message>
        <source>Export the selected runs</source>
        <translation>Die ausgewählten Läufe exportieren</translation>
    </message>
    <message>
        <source>HTTP archive</source>
        <translation>HTTP-Archiv</translation>
    </message>
    <message>
        <source>C++ test</source>
        <translation>C++-Test</translation>
    </message>
</context>
<context>
    <name>explorer::Limits</name>
    <message>
        <source>Must be one of: %1</source>
        <translation>Erlaubt sind: %1</translation>
    </message>
    <message>
        <source>Must be %1 or more</source>
        <translation>Muss mindestens %1 sein</translation>
    </message>
    <message>
        <source>Must be %1 or less</source>
        <translation>Darf höchstens %1 sein</translation>
    </message>
</context>
<context>
    <name>explorer::ListEditor</name>
    <message>
        <source>Add element</source>
        <translation>Element hinzufügen</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>Add an element to %1</source>
        <translation>Element zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>explorer::MainWindow</name>
    <message>
        <source>APIModule Explorer</source>
        <translation>APIModule-Explorer</translation>
    </message>
    <message>
        <source>The emulator exited: %1</source>
        <translation>Der Emulator wurde beendet: %1</translation>
    </message>
    <message>
        <source>The token is in the desktop&apos;s secret service.</source>
        <translation>Das Token liegt im Schlüsselbund des Desktops.</translation>
    </message>
    <message>
        <source>No secret service is available: the token is kept until the program exits.</source>
        <translation>Kein Schlüsselbund verfügbar: Das Token wird nur bis zum Programmende behalten.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>&amp;Call</source>
        <translation>&amp;Aufruf</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Aus&amp;führen</translation>
    </message>
    <message>
        <source>&amp;Find a call</source>
        <translation>Aufruf &amp;suchen</translation>
    </message>
    <message>
        <source>T&amp;oggle favourite</source>
        <translation>Fa&amp;vorit setzen oder entfernen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Server</source>
        <translation>&amp;Server</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Wählen</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten …</translation>
    </message>
    <message>
        <source>Enter the &amp;token…</source>
        <translation>&amp;Token eingeben …</translation>
    </message>
    <message>
        <source>&amp;Start the emulator</source>
        <translation>&amp;Emulator starten</translation>
    </message>
    <message>
        <source>St&amp;op the emulator</source>
        <translation>E&amp;mulator stoppen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Follow the &amp;desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>About APIModule Explorer</source>
        <translation>Über APIModule-Explorer</translation>
    </message>
    <message>
        <source>&lt;h3&gt;APIModule Explorer %1&lt;/h3&gt;&lt;p&gt;Makes any APIModule call from a graphical interface. It is a host with a user manager, wait dialog, notifications and logs.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;APIModule-Explorer %1&lt;/h3&gt;&lt;p&gt;Führt beliebige APIModule-Aufrufe in einer grafischen Oberfläche aus. Er ist ein Host mit Benutzerverwaltung, Wartedialog, Benachrichtigungen und Protokoll.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Choose a call first</source>
        <translation>Wählen Sie zuerst einen Aufruf</translation>
    </message>
    <message>
        <source>The emulator gets a new token at each start.</source>
        <translation>Der Emulator bekommt bei jedem Start ein neues Token.</translation>
    </message>
    <message>
        <source>Log and n&amp;otifications</source>
        <translation>P&amp;rotokoll und Benachrichtigungen</translation>
    </message>
    <message>
        <source>&amp;Go to</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>&amp;Vorheriger Bereich</translation>
    </message>
    <message>
        <source>&amp;Calls</source>
        <translation>&amp;Aufrufe</translation>
    </message>
    <message>
        <source>&amp;Arguments</source>
        <translation>A&amp;rgumente</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>Re&amp;quest</source>
        <translation>A&amp;nfrage</translation>
    </message>
    <message>
        <source>&amp;Timing</source>
        <translation>&amp;Zeiten</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>&amp;Notifications</source>
        <translation>&amp;Benachrichtigungen</translation>
    </message>
    <message>
        <source>The call runs as soon as the emulator has started.</source>
        <translation>Der Aufruf wird ausgeführt, sobald der Emulator gestartet ist.</translation>
    </message>
    <message>
        <source>Choose a call to see its request here.</source>
        <translation>Wählen Sie einen Aufruf, um hier seine Anfrage zu sehen.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>An argument has an invalid value</source>
        <translation>Ein Argument hat einen ungültigen Wert</translation>
    </message>
    <message>
        <source>Emulator</source>
        <translation>Emulator</translation>
    </message>
    <message>
        <source>&amp;Emulator</source>
        <translation>E&amp;mulator</translation>
    </message>
</context>
<context>
    <name>explorer::NameLabel</name>
    <message>
        <source>Allowed: %1</source>
        <translation>Erlaubt: %1</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Beispiel: %1</translation>
    </message>
</context>
<context>
    <name>explorer::NotificationFeed</name>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>explorer::NumberBox</name>
    <message>
        <source>Enter a number</source>
        <translation>Geben Sie eine Zahl ein</translation>
    </message>
    <message>
        <source>Must be a number, such as 0.5</source>
        <translation>Muss eine Zahl sein, zum Beispiel 0.5</translation>
    </message>
    <message>
        <source>Must be from %1 to %2</source>
        <translation>Muss zwischen %1 und %2 liegen</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Keine ganze Zahl</translation>
    </message>
</context>
<context>
    <name>explorer::OverwriteDialog</name>
    <message>
        <source>Overwrite values on the server?</source>
        <translation>Werte auf dem Server überschreiben?</translation>
    </message>
    <message>
        <source>%1 sends values that you have not entered. They replace those on the server.</source>
        <translation>%1 sendet Werte, die Sie nicht eingegeben haben. Sie ersetzen die Werte auf dem Server.</translation>
    </message>
    <message>
        <source>%1 sends values that you have not entered. The values they replace are unknown.</source>
        <translation>%1 sendet Werte, die Sie nicht eingegeben haben. Welche Werte sie ersetzen, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Changed values</source>
        <translation>Werte, die sich ändern</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>On the server</source>
        <translation>Auf dem Server</translation>
    </message>
    <message>
        <source>Will be sent</source>
        <translation>Wird gesendet</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Eingegeben</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>&amp;Send anyway</source>
        <translation>Trotzdem &amp;senden</translation>
    </message>
</context>
<context>
    <name>explorer::RecordModel</name>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Elements: %1</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>not in the reply</source>
        <translation>nicht in der Antwort</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTable</name>
    <message>
        <source>&amp;List:</source>
        <translation>&amp;Liste:</translation>
    </message>
    <message>
        <source>&amp;Export CSV…</source>
        <translation>CSV &amp;exportieren …</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>Text in beliebiger Spalte</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
    <message>
        <source>Rows: %1 of %2</source>
        <translation>Zeilen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTableModel</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>explorer::RecordTree</name>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Filter the record</source>
        <translation>Datensatz filtern</translation>
    </message>
    <message>
        <source>Filter by name or value (Ctrl+F)</source>
        <translation>Nach Name oder Wert filtern (Strg+F)</translation>
    </message>
    <message>
        <source>Copy the &amp;value</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy the &amp;path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy as &amp;JSON, with children</source>
        <translation>Als &amp;JSON mit allen Unterelementen kopieren</translation>
    </message>
    <message>
        <source>Matches: %1</source>
        <translation>Treffer: %1</translation>
    </message>
</context>
<context>
    <name>explorer::RequestView</name>
    <message>
        <source>The request has no body.</source>
        <translation>Die Anfrage hat keinen Rumpf.</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopfzeile</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>&amp;Rumpf</translation>
    </message>
    <message>
        <source>c&amp;url</source>
        <translation>c&amp;url</translation>
    </message>
    <message>
        <source>C&amp;++</source>
        <translation>C&amp;++</translation>
    </message>
    <message>
        <source>Re&amp;quest:</source>
        <translation>An&amp;frage:</translation>
    </message>
    <message>
        <source>Hea&amp;ders</source>
        <translation>Ko&amp;pfzeilen</translation>
    </message>
    <message>
        <source>The request cannot be built.</source>
        <translation>Die Anfrage kann nicht erzeugt werden.</translation>
    </message>
    <message>
        <source>a&amp;picall</source>
        <translation>ap&amp;icall</translation>
    </message>
</context>
<context>
    <name>explorer::RequestsPage</name>
    <message>
        <source>No requests</source>
        <translation>Keine Anfragen</translation>
    </message>
    <message>
        <source>Choose a request to see its headers and its body.</source>
        <translation>Wählen Sie eine Anfrage, um ihre Kopfzeilen und ihren Rumpf zu sehen.</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Anfragen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>explorer::ResultHeader</name>
    <message>
        <source>Result %1</source>
        <translation>Ergebnis %1</translation>
    </message>
    <message>
        <source>HTTP %1</source>
        <translation>HTTP %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>The server reports: %1</source>
        <translation>Der Server meldet: %1</translation>
    </message>
    <message>
        <source>%1 is running</source>
        <translation>%1 läuft</translation>
    </message>
    <message>
        <source>Waiting for the server</source>
        <translation>Warten auf den Server</translation>
    </message>
    <message>
        <source>Not run yet</source>
        <translation>Noch nicht ausgeführt</translation>
    </message>
    <message>
        <source>Result and time of the run appear here.</source>
        <translation>Hier erscheinen Ergebnis und Dauer.</translation>
    </message>
    <message>
        <source>time-out %1 s</source>
        <translation>Zeitlimit %1 s</translation>
    </message>
    <message>
        <source>Connection: %1</source>
        <translation>Verbindung: %1</translation>
    </message>
</context>
<context>
    <name>explorer::ResultView</name>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Datensatz</translation>
    </message>
    <message>
        <source>&amp;JSON</source>
        <translation>&amp;JSON</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>This call returns no record.</source>
        <translation>Dieser Aufruf liefert keinen Datensatz.</translation>
    </message>
    <message>
        <source>Run a call to see its result here.</source>
        <translation>Führen Sie einen Aufruf aus, um hier sein Ergebnis zu sehen.</translation>
    </message>
    <message>
        <source>There is no list in this record.</source>
        <translation>Dieser Datensatz enthält keine Liste.</translation>
    </message>
    <message>
        <source>There is no record.</source>
        <translation>Es gibt keinen Datensatz.</translation>
    </message>
    <message>
        <source>The reply contained no data for a record.</source>
        <translation>Die Antwort enthielt keine Daten für einen Datensatz.</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Es wurde nichts gesendet.</translation>
    </message>
    <message>
        <source>No request was made.</source>
        <translation>Es wurde keine Anfrage gestellt.</translation>
    </message>
    <message>
        <source>Raw e&amp;xchange</source>
        <translation>R&amp;ohdaten</translation>
    </message>
</context>
<context>
    <name>explorer::RunBar</name>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Run the call (F5)</source>
        <translation>Aufruf ausführen (F5)</translation>
    </message>
    <message>
        <source>Behind the wait dialog</source>
        <translation>Mit Wartedialog</translation>
    </message>
    <message>
        <source>In the event loop, input allowed</source>
        <translation>In der Ereignisschleife, Eingaben möglich</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>&amp;Warten</translation>
    </message>
    <message>
        <source>Call&apos;s default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>T&amp;ime-out</source>
        <translation>Ze&amp;itlimit</translation>
    </message>
    <message numerus="yes">
        <source>%n call(s) waiting for the server</source>
        <translation>
            <numerusform>%n Aufruf wartet auf den Server</numerusform>
            <numerusform>%n Aufrufe warten auf den Server</numerusform>
        </translation>
    </message>
    <message>
        <source>Not at all, several at once</source>
        <translation>Gar nicht, mehrere gleichzeitig</translation>
    </message>
    <message>
        <source>The longest time-out is %1 s.</source>
        <translation>Das Zeitlimit beträgt höchstens %1 s.</translation>
    </message>
</context>
<context>
    <name>explorer::Runner</name>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 succeeded</source>
        <translation>%1 erfolgreich</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>explorer::RunningCalls</name>
    <message>
        <source>Running calls</source>
        <translation>Laufende Aufrufe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <extracomment>%1 is a call</extracomment>
        <translation>%1 abbrechen</translation>
    </message>
</context>
<context>
    <name>explorer::ServerBar</name>
    <message>
        <source>Servers…</source>
        <translation>Server …</translation>
    </message>
    <message>
        <source>Stop the emulator</source>
        <translation>Emulator stoppen</translation>
    </message>
    <message>
        <source>Start the emulator</source>
        <translation>Emulator starten</translation>
    </message>
    <message>
        <source>The emulator is starting</source>
        <translation>Der Emulator startet</translation>
    </message>
    <message>
        <source>The emulator is not running</source>
        <translation>Der Emulator läuft nicht</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
</context>
<context>
    <name>explorer::Servers</name>
    <message>
        <source>Built-in emulator</source>
        <translation>Eingebauter Emulator</translation>
    </message>
</context>
<context>
    <name>explorer::ServersDialog</name>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>Rechnername oder IP-Adresse</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Language for the server&apos;s replies</source>
        <translation>Sprache für die Antworten des Servers</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Scheme</source>
        <translation>&amp;Schema</translation>
    </message>
    <message>
        <source>&amp;Host</source>
        <translation>&amp;Rechner</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>New server</source>
        <translation>Neuer Server</translation>
    </message>
    <message>
        <source>any free port</source>
        <translation>freier Port</translation>
    </message>
    <message>
        <source>New at each start</source>
        <translation>Bei jedem Start ein neues</translation>
    </message>
    <message>
        <source>Asked for when needed</source>
        <translation>Wird bei Bedarf abgefragt</translation>
    </message>
    <message>
        <source>A server needs a name.</source>
        <translation>Der Server benötigt einen Namen.</translation>
    </message>
    <message>
        <source>“%1” needs a host name or an IP address (IPv6 in brackets).</source>
        <translation>„%1“ benötigt einen Rechnernamen oder eine IP-Adresse (IPv6 in eckigen Klammern).</translation>
    </message>
    <message>
        <source>“%1” needs a language.</source>
        <translation>„%1“ benötigt eine Sprache.</translation>
    </message>
    <message>
        <source>To&amp;ken</source>
        <translation>To&amp;ken</translation>
    </message>
    <message>
        <source>Fetch from the server</source>
        <translation>Vom Server abrufen</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Diesem Zertifikat vertrauen</translation>
    </message>
    <message>
        <source>Trust any certificate</source>
        <translation>Jedem Zertifikat vertrauen</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>None: everything is sent unencrypted.</source>
        <translation>Keines: Alles wird unverschlüsselt übertragen.</translation>
    </message>
    <message>
        <source>Only this certificate is trusted (SHA-256):
%1</source>
        <translation>Nur diesem Zertifikat wird vertraut (SHA-256):
%1</translation>
    </message>
    <message>
        <source>Any certificate is trusted: anyone who intercepts the connection can read the token.</source>
        <translation>Jedem Zertifikat wird vertraut: Wer die Verbindung abfängt, kann das Token lesen.</translation>
    </message>
    <message>
        <source>Fetching the certificate…</source>
        <translation>Das Zertifikat wird abgerufen …</translation>
    </message>
    <message>
        <source>The server presented no certificate: %1</source>
        <translation>Der Server hat kein Zertifikat vorgelegt: %1</translation>
    </message>
    <message>
        <source>The server presents this certificate.</source>
        <translation>Der Server legt dieses Zertifikat vor.</translation>
    </message>
    <message>
        <source>The server presents (SHA-256):
%1</source>
        <translation>Vom Server vorgelegt (SHA-256):
%1</translation>
    </message>
    <message>
        <source>The certificate has changed: someone may be impersonating the server. Compare the digest with the one on the server.</source>
        <translation>Das Zertifikat hat sich geändert: Möglicherweise gibt sich jemand als der Server aus. Vergleichen Sie den Fingerabdruck mit dem auf dem Server.</translation>
    </message>
</context>
<context>
    <name>explorer::StartPage</name>
    <message>
        <source>Multiplies the length of the seeded lists</source>
        <translation>Vervielfacht die Länge der Listen in den Anfangsdaten</translation>
    </message>
    <message>
        <source>The built-in seed data</source>
        <translation>Eingebaute Anfangsdaten</translation>
    </message>
    <message>
        <source>Cho&amp;ose…</source>
        <translation>&amp;Ordner …</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Seed folder</source>
        <translation>Ordner mit Anfangsdaten</translation>
    </message>
    <message>
        <source>Folder of the seed data</source>
        <translation>Ordner mit den Anfangsdaten</translation>
    </message>
    <message>
        <source>Restar&amp;t with these settings</source>
        <translation>Neu s&amp;tarten</translation>
    </message>
    <message>
        <source>Star&amp;t with these settings</source>
        <translation>S&amp;tarten</translation>
    </message>
</context>
<context>
    <name>explorer::StatePage</name>
    <message>
        <source>A&amp;pply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Applies your changes as a JSON merge patch</source>
        <translation>Übernimmt Ihre Änderungen als JSON Merge Patch</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Neu la&amp;den</translation>
    </message>
    <message>
        <source>Shows the current state; unapplied changes are lost</source>
        <translation>Zeigt den aktuellen Zustand; nicht übernommene Änderungen gehen verloren</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>Zurückse&amp;tzen</translation>
    </message>
    <message>
        <source>Restores the seed data</source>
        <translation>Stellt die Anfangsdaten wieder her</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>This part is too long to edit. Choose a smaller one.</source>
        <translation>Dieser Teil ist zu lang zum Bearbeiten. Wählen Sie einen kleineren.</translation>
    </message>
    <message>
        <source>Line %1 is not JSON.</source>
        <translation>Zeile %1 ist kein JSON.</translation>
    </message>
    <message>
        <source>A merge patch cannot make a member null.</source>
        <translation>Ein Merge Patch kann keinen Wert auf null setzen.</translation>
    </message>
    <message>
        <source>The state was changed.</source>
        <translation>Der Zustand wurde geändert.</translation>
    </message>
    <message>
        <source>The seed data was restored.</source>
        <translation>Die Anfangsdaten wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>The emulator rejected the change: %1</source>
        <translation>Der Emulator hat die Änderung abgelehnt: %1</translation>
    </message>
</context>
<context>
    <name>explorer::TimingChart</name>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>95th percentile</source>
        <translation>95. Perzentil</translation>
    </message>
    <message>
        <source>%1: %2 ms</source>
        <translation>%1: %2 ms</translation>
    </message>
</context>
<context>
    <name>explorer::TimingView</name>
    <message>
        <source>Re&amp;peat</source>
        <translation>Wie&amp;derholen</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Run a call to see how long it takes.</source>
        <translation>Führen Sie einen Aufruf aus, um zu sehen, wie lange er dauert.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>95th percentile</source>
        <translation>95. Perzentil</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source> times</source>
        <translation>-mal</translation>
    </message>
    <message>
        <source>Ru&amp;n the call</source>
        <translation>A&amp;ufruf ausführen</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>This run: sent after %1 ms, first byte after %2 ms, complete after %3 ms</source>
        <translation>Dieser Lauf: gesendet nach %1 ms, erstes Byte nach %2 ms, vollständig nach %3 ms</translation>
    </message>
    <message>
        <source>This run: sent after %1 ms, no byte within %2 ms</source>
        <translation>Dieser Lauf: gesendet nach %1 ms, bis %2 ms kein Byte empfangen</translation>
    </message>
</context>
<context>
    <name>explorer::TokenDialog</name>
    <message>
        <source>Store it in the desktop&apos;s secret service</source>
        <translation>Im Schlüsselbund des Desktops speichern</translation>
    </message>
    <message>
        <source>Session token</source>
        <translation>Sitzungstoken</translation>
    </message>
    <message>
        <source>Session &amp;token for “%1”:</source>
        <translation>Sitzungs&amp;token für „%1“:</translation>
    </message>
    <message>
        <source>Without a secret service, the token is kept until the program exits. It is never written to a file.</source>
        <translation>Ohne Schlüsselbund wird das Token nur bis zum Programmende behalten. Es wird nie in eine Datei geschrieben.</translation>
    </message>
</context>
<context>
    <name>explorer::TotalsRow</name>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
</context>
<context>
    <name>explorer::WriteGuard</name>
    <message>
        <source>%1 needs &quot;%2&quot;</source>
        <translation>%1 benötigt „%2“</translation>
    </message>
    <message>
        <source>The form now has the values from the server.</source>
        <translation>Das Formular enthält jetzt die Werte vom Server.</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <extracomment>%1 is a call, %2 why it failed</extracomment>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>%1 returned no data</source>
        <translation>%1 hat keine Daten geliefert</translation>
    </message>
</context>
</TS>
