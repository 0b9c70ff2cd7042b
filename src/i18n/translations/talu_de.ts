<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>ArtNetNode</name>
    <message>
        <source>No socket could be created.</source>
        <translation>Es konnte kein Socket erstellt werden.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses can be used.</source>
        <translation>Es können nur IPv4-Adressen verwendet werden.</translation>
    </message>
</context>
<context>
    <name>BroadcastPanel</name>
    <message>
        <source>Torvane Tester</source>
        <translation>Torvane Tester</translation>
    </message>
    <message>
        <source>TOVA</source>
        <translation>TOVA</translation>
    </message>
    <message>
        <source>BRENO</source>
        <translation>BRENO</translation>
    </message>
    <message>
        <source>KEL6S</source>
        <translation>KEL6S</translation>
    </message>
    <message>
        <source>MIRRA</source>
        <translation>MIRRA</translation>
    </message>
    <message>
        <source>Generic node</source>
        <translation>Generischer Node</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>Kein Empfang.</translation>
    </message>
    <message>
        <source>Not recording.</source>
        <translation>Keine Aufnahme.</translation>
    </message>
    <message>
        <source>Listen on</source>
        <translation>Empfangen auf</translation>
    </message>
    <message>
        <source>The local address this node listens on.

Running alongside Torvane MOX on the same machine? Pick a specific address, not Any: MOX binds to Any, and Windows delivers a unicast packet to the more specific socket.</source>
        <translation>Die lokale Adresse, auf der dieser Node empfängt.

Läuft Torvane MOX auf demselben Rechner? Wählen Sie eine bestimmte Adresse, nicht „Alle“: MOX bindet an „Alle“, und Windows stellt ein Unicast-Paket dem spezifischeren Socket zu.</translation>
    </message>
    <message>
        <source>Any (0.0.0.0)</source>
        <translation>Alle (0.0.0.0)</translation>
    </message>
    <message>
        <source>%1 (loopback)</source>
        <translation>%1 (Loopback)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>List the network interfaces again</source>
        <translation>Netzwerkschnittstellen neu einlesen</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Art-Net uses 6454. Change only if you know why.</source>
        <translation>Art-Net verwendet 6454. Nur ändern, wenn Sie wissen, warum.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Preset identities. Pick one, then edit the fields below.</source>
        <translation>Vordefinierte Identitäten. Eine auswählen und dann die Felder darunter anpassen.</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Kurzname</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Langname</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Sub</source>
        <translation>Sub</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>Empfang stoppen</translation>
    </message>
    <message>
        <source>Start listening</source>
        <translation>Empfang starten</translation>
    </message>
    <message>
        <source>Record incoming stream</source>
        <translation>Eingehenden Stream aufnehmen</translation>
    </message>
    <message>
        <source>Write every incoming Art-Net DMX packet to a .tpx file,
byte compatible with Torvane MOX recordings.

An existing file is appended to, not overwritten - that is how several animations end up in one file.</source>
        <translation>Schreibt jedes eingehende Art-Net-DMX-Paket in eine .tpx-Datei,
bytegenau kompatibel mit Aufnahmen von Torvane MOX.

An eine vorhandene Datei wird angehängt, sie wird nicht überschrieben - so landen mehrere Animationen in einer Datei.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose where the recording is written</source>
        <translation>Speicherort der Aufnahme wählen</translation>
    </message>
    <message>
        <source>File name (.tpx is added)</source>
        <translation>Dateiname (.tpx wird angehängt)</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>The frame rate of the source that is sending to us.
It only scales the 2-byte timestamp written into each record - the DMX data itself is stored exactly as received.</source>
        <translation>Die Bildrate der Quelle, die an uns sendet.
Sie skaliert nur den 2-Byte-Zeitstempel, der in jeden Datensatz geschrieben wird - die DMX-Daten selbst werden genau so gespeichert, wie sie empfangen wurden.</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>No patch loaded - recording works, but the monitor stays dark.</source>
        <translation>Kein Patch geladen - die Aufnahme funktioniert, aber der Monitor bleibt dunkel.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (nicht vorhanden)</translation>
    </message>
    <message>
        <source>Select Recording Folder</source>
        <translation>Aufnahmeordner wählen</translation>
    </message>
    <message>
        <source>No ArtPoll seen yet - no controller is looking for nodes.</source>
        <translation>Noch kein ArtPoll empfangen - kein Controller sucht nach Nodes.</translation>
    </message>
    <message>
        <source>Answering ArtPoll (%1 replies sent).</source>
        <translation>ArtPoll wird beantwortet (%1 Antworten gesendet).</translation>
    </message>
    <message>
        <source>Last ArtPoll %1 s ago - the controller may have stopped.</source>
        <translation>Letzter ArtPoll vor %1 s - der Controller wurde möglicherweise gestoppt.</translation>
    </message>
    <message>
        <source>%1 pkt/s</source>
        <translation>%1 Pkt/s</translation>
    </message>
    <message>
        <source>%1 packets</source>
        <translation>%1 Pakete</translation>
    </message>
    <message>
        <source>no DMX yet</source>
        <translation>noch kein DMX</translation>
    </message>
    <message>
        <source>last %1 ms ago</source>
        <translation>zuletzt vor %1 ms</translation>
    </message>
    <message>
        <source>%1 seq errors</source>
        <translation>%1 Sequenzfehler</translation>
    </message>
    <message>
        <source>%1 ignored</source>
        <translation>%1 ignoriert</translation>
    </message>
</context>
<context>
    <name>DmxChannelGrid</name>
    <message>
        <source>no data</source>
        <translation>keine Daten</translation>
    </message>
</context>
<context>
    <name>DmxInspector</name>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>The universe shown, by Port-Address.</source>
        <translation>Das angezeigte Universum, nach Port-Address.</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Universum</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>Kanal %1: %2</translation>
    </message>
    <message>
        <source> · not patched</source>
        <translation> · nicht gepatcht</translation>
    </message>
    <message>
        <source>kinetic</source>
        <translation>Kinetik</translation>
    </message>
    <message>
        <source>… (%1 in all)</source>
        <translation>… (insgesamt %1)</translation>
    </message>
    <message>
        <source> · %1 of pixel(s) %2</source>
        <translation> · %1 von Pixel %2</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Display filter, e.g. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</source>
        <translation>Anzeigefilter, z. B. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</translation>
    </message>
    <message>
        <source>Type a display filter and press Enter. Green: the filter is valid; red: it is not, and the message below says why.</source>
        <translation>Geben Sie einen Anzeigefilter ein und drücken Sie die Eingabetaste. Grün: Der Filter ist gültig; rot: Er ist es nicht, und die Meldung darunter nennt den Grund.</translation>
    </message>
    <message>
        <source>Display filter</source>
        <translation>Anzeigefilter</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>GpsGroupRow</name>
    <message>
        <source>expects %1 universe(s)</source>
        <translation>erwartet %1 Universum/Universen</translation>
    </message>
    <message>
        <source>no drawable pixels</source>
        <translation>keine darstellbaren Pixel</translation>
    </message>
    <message>
        <source>Recording for &quot;%1&quot;</source>
        <translation>Aufnahme für &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for the recording of &quot;%1&quot;</source>
        <translation>Nach der Aufnahme für &quot;%1&quot; suchen</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>nicht geprüft</translation>
    </message>
    <message>
        <source>%1 - %2 frames - %3 universe(s)/frame - %4 B/frame</source>
        <translation>%1 - %2 Bilder - %3 Universum/Universen pro Bild - %4 B/Bild</translation>
    </message>
    <message>
        <source> (patch expects %1)</source>
        <translation> (Patch erwartet %1)</translation>
    </message>
    <message>
        <source>file differs from the patch</source>
        <translation>Datei weicht vom Patch ab</translation>
    </message>
    <message>
        <source>file usable</source>
        <translation>Datei verwendbar</translation>
    </message>
    <message>
        <source>file unusable</source>
        <translation>Datei unbrauchbar</translation>
    </message>
    <message>
        <source>Recording for group</source>
        <translation>Aufnahme für Gruppe</translation>
    </message>
    <message>
        <source>Torvane Recording (*.tpx);;All Files (*)</source>
        <translation>Torvane-Aufnahme (*.tpx);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>GpsPlaybackPanel</name>
    <message>
        <source>One recording per group, all driven from one clock.</source>
        <translation>Eine Aufnahme pro Gruppe, alle von einem gemeinsamen Takt gesteuert.</translation>
    </message>
    <message>
        <source>MOX writes a GPS-Sync recording as one file per group, named &lt;name&gt;_&lt;Group&gt;.tpx.
In the field each device plays its own group&apos;s file while the GPS pulse keeps them all on the same frame index.
This tab does the same: one clock drives frame n of every file at the same instant.</source>
        <translation>MOX schreibt eine GPS-Sync-Aufnahme als eine Datei pro Gruppe mit dem Namen &lt;name&gt;_&lt;Group&gt;.tpx.
Vor Ort spielt jedes Gerät die Datei seiner eigenen Gruppe, während der GPS-Puls alle auf demselben Bildindex hält.
Dieser Tab macht dasselbe: Ein Takt steuert Bild n jeder Datei im selben Moment.</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Zuerst einen Patch laden - die Gruppenliste stammt daraus.</translation>
    </message>
    <message>
        <source>Auto-fill from folder...</source>
        <translation>Aus Ordner füllen...</translation>
    </message>
    <message>
        <source>Pick the folder the recording was saved into.

MOX names GPS-Sync files &lt;name&gt;_&lt;Group&gt;.tpx, so every group can be matched by name. When a folder holds several sessions, the one that covers the most groups is chosen.</source>
        <translation>Wählen Sie den Ordner, in dem die Aufnahme gespeichert wurde.

MOX benennt GPS-Sync-Dateien &lt;name&gt;_&lt;Group&gt;.tpx, daher lässt sich jede Gruppe über den Namen zuordnen. Enthält ein Ordner mehrere Sessions, wird diejenige gewählt, die die meisten Gruppen abdeckt.</translation>
    </message>
    <message>
        <source>Load set</source>
        <translation>Set laden</translation>
    </message>
    <message>
        <source>Open every file, verify structure and sync, then arm playback.</source>
        <translation>Alle Dateien öffnen, Struktur und Sync prüfen, dann die Wiedergabe scharf schalten.</translation>
    </message>
    <message>
        <source>Structure &amp; sync report</source>
        <translation>Struktur- &amp; Sync-Bericht</translation>
    </message>
    <message>
        <source>Stop and return every file to its first frame</source>
        <translation>Stoppen und jede Datei auf ihr erstes Bild zurücksetzen</translation>
    </message>
    <message>
        <source>All files are presented at exactly this rate.
The timestamp stored in the files is used to verify sync, not to pace playback.</source>
        <translation>Alle Dateien werden mit genau dieser Rate ausgegeben.
Der in den Dateien gespeicherte Zeitstempel dient zur Prüfung der Synchronität, nicht zur Taktung der Wiedergabe.</translation>
    </message>
    <message>
        <source>Loop the whole set (1 -&gt; end -&gt; 1)</source>
        <translation>Ganzes Set in Schleife (1 -&gt; Ende -&gt; 1)</translation>
    </message>
    <message>
        <source>Play the set end to end, over and over.
Every file wraps on the same frame, so a set that drifts shows it within a few passes.</source>
        <translation>Das Set von Anfang bis Ende immer wieder abspielen.
Jede Datei springt beim selben Bild zurück, daher zeigt sich ein driftendes Set schon nach wenigen Durchläufen.</translation>
    </message>
    <message>
        <source>Set loaded: %1 recording(s), %2 frames each.</source>
        <translation>Set geladen: %1 Aufnahme(n), je %2 Bilder.</translation>
    </message>
    <message>
        <source>No set loaded.</source>
        <translation>Kein Set geladen.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Bild %1 / %2</translation>
    </message>
    <message>
        <source>%1 file(s) driven together</source>
        <translation>%1 Datei(en) gemeinsam gesteuert</translation>
    </message>
    <message>
        <source>timestamps in step</source>
        <translation>Zeitstempel synchron</translation>
    </message>
    <message>
        <source>timestamps %1 s apart</source>
        <translation>Zeitstempel %1 s auseinander</translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation>Ordner mit den GPS-Sync-Aufnahmen</translation>
    </message>
</context>
<context>
    <name>GroupFilterPanel</name>
    <message>
        <source>Groups &amp; Universes</source>
        <translation>Gruppen &amp; Universen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Port addr.</source>
        <translation>Port-Addr.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Alle ausblenden</translation>
    </message>
    <message>
        <source>Z Layer</source>
        <translation>Z-Ebene</translation>
    </message>
    <message>
        <source>Z </source>
        <translation>Z </translation>
    </message>
    <message>
        <source>Only pixels on this Z layer are drawn.</source>
        <translation>Nur Pixel auf dieser Z-Ebene werden gezeichnet.</translation>
    </message>
    <message>
        <source>All Z</source>
        <translation>Alle Z</translation>
    </message>
    <message>
        <source>Draw every Z layer at once. Layers overlap in 2D, so this is a quick look rather than an inspection view.</source>
        <translation>Alle Z-Ebenen gleichzeitig zeichnen. Die Ebenen überlappen sich in 2D, daher ist dies eher ein schneller Überblick als eine Ansicht zur genauen Prüfung.</translation>
    </message>
    <message>
        <source>Universe %1</source>
        <translation>Universum %1</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>Net %1 / SubNet %2 / Universe %3
Target IP %4
Select to highlight this universe on the monitor.</source>
        <translation>Net %1 / SubNet %2 / Universe %3
Ziel-IP %4
Auswählen, um dieses Universum auf dem Monitor hervorzuheben.</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Single layer (Z %1).</source>
        <translation>Einzelne Ebene (Z %1).</translation>
    </message>
    <message>
        <source>Layers %1 - %2. Only the selected layer is drawn.</source>
        <translation>Ebenen %1 - %2. Nur die gewählte Ebene wird gezeichnet.</translation>
    </message>
</context>
<context>
    <name>Health</name>
    <message>
        <source>ArtDmx packets received for this universe.</source>
        <translation>Für dieses Universum empfangene ArtDmx-Pakete.</translation>
    </message>
    <message>
        <source>Packets per second: over the last second live, over the whole file otherwise.</source>
        <translation>Pakete pro Sekunde: live über die letzte Sekunde, sonst über die gesamte Datei.</translation>
    </message>
    <message>
        <source>Sequence numbers skipped by forward jumps (shorter than half the 1-255 cycle, across the wrap from 255 to 1), less those that arrived late: a swapped pair loses nothing.</source>
        <translation>Durch Vorwärtssprünge übersprungene Sequenznummern (kürzer als der halbe Zyklus 1-255, auch über den Übergang von 255 auf 1 hinweg), abzüglich der verspätet eingetroffenen: Ein vertauschtes Paar verliert nichts.</translation>
    </message>
    <message>
        <source>Packets that arrived behind the highest sequence number seen so far (a backward step shorter than half the cycle).</source>
        <translation>Pakete, deren Sequenznummer beim Eintreffen hinter der bisher höchsten zurücklag (ein Rückschritt, kürzer als der halbe Zyklus).</translation>
    </message>
    <message>
        <source>Packets repeating the highest sequence number seen so far.</source>
        <translation>Pakete, die die bisher höchste Sequenznummer wiederholen.</translation>
    </message>
    <message>
        <source>Times the data length changed from one packet to the next.</source>
        <translation>Wie oft sich die Datenlänge von einem Paket zum nächsten geändert hat.</translation>
    </message>
    <message>
        <source>Milliseconds since the last packet.</source>
        <translation>Millisekunden seit dem letzten Paket.</translation>
    </message>
    <message>
        <source>The shortest, median and longest time between two packets, in ms (the median of the latest 64).</source>
        <translation>Kürzeste Zeit, Median und längste Zeit zwischen zwei Paketen, in ms (der Median der letzten 64).</translation>
    </message>
    <message>
        <source>ArtSync periods in which the universe came twice or not at all (a torn frame).</source>
        <translation>ArtSync-Perioden, in denen das Universum zweimal oder gar nicht kam (ein zerrissenes Bild).</translation>
    </message>
    <message>
        <source>never: patched, nothing received; stale: nothing for more than 4 s; conflict: two or more senders; unstable: over 1 % of packets lost, out of order or repeated, or a longest interval over 4 times the median and over 100 ms; ok: none of these.</source>
        <translation>nie: gepatcht, nichts empfangen; veraltet: seit mehr als 4 s nichts; Konflikt: zwei oder mehr Quellen; instabil: über 1 % der Pakete verloren, in falscher Reihenfolge oder wiederholt, oder ein längstes Intervall über dem 4-Fachen des Medians und über 100 ms; ok: nichts davon.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>veraltet</translation>
    </message>
    <message>
        <source>conflict</source>
        <translation>Konflikt</translation>
    </message>
    <message>
        <source>unstable</source>
        <translation>instabil</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>never received</source>
        <translation>nie empfangen</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n sender(s) · %2 fps · lost %3 · out of order %4 · duplicates %5 · last %6 s ago</source>
        <translation>
            <numerusform>%1 · %n Quelle · %2 fps · verloren %3 · falsche Reihenfolge %4 · Duplikate %5 · zuletzt vor %6 s</numerusform>
            <numerusform>%1 · %n Quellen · %2 fps · verloren %3 · falsche Reihenfolge %4 · Duplikate %5 · zuletzt vor %6 s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin.</source>
        <translation>Bereit. Zum Starten einen Patch laden (.tpatch, MADRIX .mpz oder ELM .elm).</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot</source>
        <translation>Monitor-Snapshot speichern</translation>
    </message>
    <message>
        <source>PNG Image (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>Snapshot Failed</source>
        <translation>Snapshot fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation>%1 konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Snapshot saved to %1</source>
        <translation>Snapshot gespeichert unter %1</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Recorded playback</source>
        <translation>Aufnahme-Wiedergabe</translation>
    </message>
    <message>
        <source>Play a .tpx recording. A patch is optional: without one the monitor stays dark and the DMX tab shows the data.</source>
        <translation>Eine .tpx-Aufnahme abspielen. Ein Patch ist optional: Ohne Patch bleibt der Monitor dunkel, und der DMX-Tab zeigt die Daten.</translation>
    </message>
    <message>
        <source>Live broadcast</source>
        <translation>Live-Empfang</translation>
    </message>
    <message>
        <source>Act as an Art-Net node and paint the monitor from live DMX.</source>
        <translation>Als Art-Net-Node arbeiten und den Monitor mit Live-DMX darstellen.</translation>
    </message>
    <message>
        <source>Standard Art-Net</source>
        <translation>Standard-Art-Net</translation>
    </message>
    <message>
        <source>One .tpx file recorded for the whole patch.</source>
        <translation>Eine .tpx-Datei, aufgenommen für den gesamten Patch.</translation>
    </message>
    <message>
        <source>GPS Mirra</source>
        <translation>GPS Mirra</translation>
    </message>
    <message>
        <source>One .tpx file per group, recorded with GPS Sync Compatible Record.
All of them are driven from a single clock, frame n at the same instant.</source>
        <translation>Eine .tpx-Datei pro Gruppe, aufgenommen mit „GPS Sync Compatible Record“.
Alle werden von einem gemeinsamen Takt gesteuert, Bild n im selben Moment.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Patch</translation>
    </message>
    <message>
        <source>DMX</source>
        <translation>DMX</translation>
    </message>
    <message>
        <source>Fit to view</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Snapshot</translation>
    </message>
    <message>
        <source>Save the current monitor image as a PNG file</source>
        <translation>Das aktuelle Monitorbild als PNG-Datei speichern</translation>
    </message>
    <message>
        <source>White channels</source>
        <translation>Weißkanäle</translation>
    </message>
    <message>
        <source>Add W / CW / WW channel values to the pixel colour.

Off by default: MOX derives the white channels FROM rgb, so there is no single correct way back. This is a visibility aid - without it, white-only fixtures stay black even while they are receiving data.</source>
        <translation>Die Kanalwerte von W / CW / WW zur Pixelfarbe addieren.

Standardmäßig aus: MOX leitet die Weißkanäle AUS RGB ab, daher gibt es keinen eindeutig richtigen Rückweg. Dies ist eine Sichtbarkeitshilfe - ohne sie bleiben reine Weiß-Fixtures schwarz, selbst wenn sie Daten empfangen.</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Show the red / green / blue X-Y-Z arrows at the origin.</source>
        <translation>Die roten / grünen / blauen X-Y-Z-Pfeile im Ursprung anzeigen.</translation>
    </message>
    <message>
        <source>Fast draw</source>
        <translation>Schnell zeichnen</translation>
    </message>
    <message>
        <source>Draw LEDs as squares without antialiasing.

Roughly 5x faster on large patches - use it when the 3D view cannot keep up with playback. Pixels look square instead of round.</source>
        <translation>LEDs als Quadrate ohne Antialiasing zeichnen.

Bei großen Patches etwa 5x schneller - verwenden, wenn die 3D-Ansicht mit der Wiedergabe nicht mithält. Pixel erscheinen eckig statt rund.</translation>
    </message>
    <message>
        <source>Auto orbit</source>
        <translation>Auto-Orbit</translation>
    </message>
    <message>
        <source>Swing the model through +-45 degrees on two axes.
Touching the view with the mouse stops it.</source>
        <translation>Das Modell auf zwei Achsen um +-45 Grad schwenken.
Eine Berührung der Ansicht mit der Maus beendet dies.</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Back to the default angle and distance</source>
        <translation>Zurück zu Standardwinkel und -abstand</translation>
    </message>
    <message>
        <source>2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation>Ordner mit den GPS-Sync-Aufnahmen</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Zuerst einen Patch laden - die Gruppenliste stammt daraus.</translation>
    </message>
    <message>
        <source>No file in &quot;%1&quot; matches a group name. GPS-Sync recordings are named &lt;name&gt;_&lt;Group&gt;.tpx.</source>
        <translation>Keine Datei in &quot;%1&quot; passt zu einem Gruppennamen. GPS-Sync-Aufnahmen heißen &lt;name&gt;_&lt;Group&gt;.tpx.</translation>
    </message>
    <message>
        <source>Matched all %1 group(s). Press Load set to verify them.</source>
        <translation>Alle %1 Gruppe(n) zugeordnet. Zum Prüfen auf „Set laden“ klicken.</translation>
    </message>
    <message>
        <source>Matched %1 of %2 group(s). Fill the rest by hand, then press Load set.</source>
        <translation>%1 von %2 Gruppe(n) zugeordnet. Den Rest von Hand ergänzen, dann auf „Set laden“ klicken.</translation>
    </message>
    <message>
        <source>The file list changed - press Load set to verify it again.</source>
        <translation>Die Dateiliste hat sich geändert - zum erneuten Prüfen auf „Set laden“ klicken.</translation>
    </message>
    <message>
        <source>Load a patch first - a GPS-Sync set is one recording per group, and the group list comes from the patch.</source>
        <translation>Zuerst einen Patch laden - ein GPS-Sync-Set besteht aus einer Aufnahme pro Gruppe, und die Gruppenliste stammt aus dem Patch.</translation>
    </message>
    <message>
        <source>GPS Mirra set: %1 recording(s), %2 frames each.</source>
        <translation>GPS-Mirra-Set: %1 Aufnahme(n), je %2 Bilder.</translation>
    </message>
    <message>
        <source>Could not listen on %1:%2 - %3</source>
        <translation>Empfang auf %1:%2 nicht möglich - %3</translation>
    </message>
    <message>
        <source>Art-Net node active on %1.</source>
        <translation>Art-Net-Node aktiv auf %1.</translation>
    </message>
    <message>
        <source>Listening on %1:%2, advertising %3 universe(s).</source>
        <translation>Empfang auf %1:%2, %3 Universum/Universen werden gemeldet.</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>Kein Empfang.</translation>
    </message>
    <message>
        <source>Start listening first - there is no node to announce.</source>
        <translation>Zuerst den Empfang starten - es gibt keinen Node, der gemeldet werden kann.</translation>
    </message>
    <message>
        <source>ArtPollReply broadcast.</source>
        <translation>ArtPollReply per Broadcast gesendet.</translation>
    </message>
    <message>
        <source>Stop listening first - the address cannot change while the node is running.</source>
        <translation>Zuerst den Empfang stoppen - die Adresse kann nicht geändert werden, solange der Node läuft.</translation>
    </message>
    <message>
        <source>Network interfaces refreshed.</source>
        <translation>Netzwerkschnittstellen aktualisiert.</translation>
    </message>
    <message>
        <source>Start listening first - there is nothing to record yet.</source>
        <translation>Zuerst den Empfang starten - noch gibt es nichts aufzunehmen.</translation>
    </message>
    <message>
        <source>Pick a folder and a file name first.</source>
        <translation>Zuerst einen Ordner und einen Dateinamen wählen.</translation>
    </message>
    <message>
        <source>Could not write %1 - %2</source>
        <translation>%1 konnte nicht geschrieben werden - %2</translation>
    </message>
    <message>
        <source>Appending to %1 (%2 KB already in the file).</source>
        <translation>Wird an %1 angehängt (bereits %2 KB in der Datei).</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Aufnahme nach %1</translation>
    </message>
    <message>
        <source>Saved %1 frame(s), %2 record(s), %3 KB to %4</source>
        <translation>%1 Bild(er), %2 Datensatz/-sätze, %3 KB in %4 gespeichert</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <translation>Aufnahme gestoppt: %1</translation>
    </message>
    <message>
        <source>Planned for a future version.</source>
        <translation>Für eine künftige Version geplant.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open Patch...</source>
        <translation>Patch öffnen...</translation>
    </message>
    <message>
        <source>Open Recording...</source>
        <translation>Aufnahme öffnen...</translation>
    </message>
    <message>
        <source>Open GPS-Sync Set Folder...</source>
        <translation>GPS-Sync-Set-Ordner öffnen...</translation>
    </message>
    <message>
        <source>Match every group of the loaded patch with its &lt;name&gt;_&lt;Group&gt;.tpx file in a folder.</source>
        <translation>Jeder Gruppe des geladenen Patches ihre Datei &lt;name&gt;_&lt;Group&gt;.tpx aus einem Ordner zuordnen.</translation>
    </message>
    <message>
        <source>Recent Patches</source>
        <translation>Zuletzt verwendete Patches</translation>
    </message>
    <message>
        <source>Recent Recordings</source>
        <translation>Zuletzt verwendete Aufnahmen</translation>
    </message>
    <message>
        <source>Open Network Log...</source>
        <translation>Netzwerk-Log öffnen...</translation>
    </message>
    <message>
        <source>Save Network Log</source>
        <translation>Netzwerk-Log speichern</translation>
    </message>
    <message>
        <source>Save Network Log As...</source>
        <translation>Netzwerk-Log speichern unter...</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot...</source>
        <translation>Monitor-Snapshot speichern...</translation>
    </message>
    <message>
        <source>Export Patch Report...</source>
        <translation>Patch-Bericht exportieren...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Network Log...</source>
        <translation>Netzwerk-Log...</translation>
    </message>
    <message>
        <source>Copy Monitor Image</source>
        <translation>Monitorbild kopieren</translation>
    </message>
    <message>
        <source>Interface Theme...</source>
        <translation>Oberflächendesign...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>2D Monitor</source>
        <translation>2D-Monitor</translation>
    </message>
    <message>
        <source>3D Monitor</source>
        <translation>3D-Monitor</translation>
    </message>
    <message>
        <source>Fit to View</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>3D Camera</source>
        <translation>3D-Kamera</translation>
    </message>
    <message>
        <source>Reset Camera</source>
        <translation>Kamera zurücksetzen</translation>
    </message>
    <message>
        <source>Show Axes</source>
        <translation>Achsen anzeigen</translation>
    </message>
    <message>
        <source>Fast Draw</source>
        <translation>Schnell zeichnen</translation>
    </message>
    <message>
        <source>Auto Orbit</source>
        <translation>Auto-Orbit</translation>
    </message>
    <message>
        <source>White Channels</source>
        <translation>Weißkanäle</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Wiedergabe / Pause</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Vorheriges Bild</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Go to Frame...</source>
        <translation>Gehe zu Bild...</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>GPS Mirra Set</source>
        <translation>GPS-Mirra-Set</translation>
    </message>
    <message>
        <source>&amp;Broadcast</source>
        <translation>&amp;Live</translation>
    </message>
    <message>
        <source>Listen for Art-Net</source>
        <translation>Art-Net empfangen</translation>
    </message>
    <message>
        <source>Record Incoming Stream</source>
        <translation>Eingehenden Stream aufnehmen</translation>
    </message>
    <message>
        <source>Announce Node Now</source>
        <translation>Node jetzt melden</translation>
    </message>
    <message>
        <source>Broadcast an ArtPollReply immediately instead of waiting for the next poll.</source>
        <translation>Sofort ein ArtPollReply per Broadcast senden, statt auf den nächsten Poll zu warten.</translation>
    </message>
    <message>
        <source>Refresh Network Interfaces</source>
        <translation>Netzwerkschnittstellen aktualisieren</translation>
    </message>
    <message>
        <source>Node Discovery (ArtPoll Scan)...</source>
        <translation>Node-Suche (ArtPoll-Scan)...</translation>
    </message>
    <message>
        <source>Test Signal Generator...</source>
        <translation>Testsignal-Generator...</translation>
    </message>
    <message>
        <source>sACN (E1.31) Input</source>
        <translation>sACN-Eingang (E1.31)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Language...</source>
        <translation>Sprache...</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Open Logs Folder</source>
        <translation>Log-Ordner öffnen</translation>
    </message>
    <message>
        <source>Patches that produced import warnings are kept here together with the messages.</source>
        <translation>Patches, die beim Import Warnungen erzeugt haben, werden hier zusammen mit den Meldungen abgelegt.</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Nach Updates suchen...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Open Patch</source>
        <translation>Patch öffnen</translation>
    </message>
    <message>
        <source>Patches (*.tpatch *.mpz *.elm *.elmbackup);;All files (*)</source>
        <translation>Patches (*.tpatch *.mpz *.elm *.elmbackup);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Aufnahme öffnen</translation>
    </message>
    <message>
        <source>Playback paused.</source>
        <translation>Wiedergabe pausiert.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Gehe zu Bild</translation>
    </message>
    <message>
        <source>Frame (0 - %1):</source>
        <translation>Bild (0 - %1):</translation>
    </message>
    <message>
        <source>Monitor image copied to the clipboard.</source>
        <translation>Monitorbild in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Interface theme: %1</source>
        <translation>Oberflächendesign: %1</translation>
    </message>
    <message>
        <source>Interface Theme</source>
        <translation>Oberflächendesign</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>There is no writable logs folder.</source>
        <translation>Es gibt keinen beschreibbaren Log-Ordner.</translation>
    </message>
    <message>
        <source>Logs folder: %1</source>
        <translation>Log-Ordner: %1</translation>
    </message>
    <message>
        <source>About Torvane TALU</source>
        <translation>Über Torvane TALU</translation>
    </message>
    <message>
        <source>See what an LED installation shows for a stream of Art-Net DMX data.</source>
        <translation>Zeigt, was eine LED-Installation bei einem Strom von Art-Net-DMX-Daten darstellt.</translation>
    </message>
    <message>
        <source>Version %1, built %2.</source>
        <translation>Version %1, erstellt am %2.</translation>
    </message>
    <message>
        <source>Running on Qt %1.</source>
        <translation>Läuft mit Qt %1.</translation>
    </message>
    <message>
        <source>This program uses:</source>
        <translation>Dieses Programm verwendet:</translation>
    </message>
    <message>
        <source>Qt %1 (The Qt Company), under the GNU Lesser General Public License version 3.</source>
        <translation>Qt %1 (The Qt Company), unter der GNU Lesser General Public License Version 3.</translation>
    </message>
    <message>
        <source>zlib (Jean-loup Gailly and Mark Adler), under the zlib licence.</source>
        <translation>zlib (Jean-loup Gailly und Mark Adler), unter der zlib-Lizenz.</translation>
    </message>
    <message>
        <source>Torvane TALU is © 2026 Torvane. All rights reserved.</source>
        <translation>Torvane TALU ist © 2026 Torvane. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Über Qt</translation>
    </message>
    <message>
        <source>no writable logs folder</source>
        <translation>kein beschreibbarer Log-Ordner</translation>
    </message>
    <message>
        <source>Patch could not be loaded.</source>
        <translation>Der Patch konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>A copy of the file and this message was saved to:
%1</source>
        <translation>Eine Kopie der Datei und dieser Meldung wurde gespeichert unter:
%1</translation>
    </message>
    <message>
        <source>Patch Error</source>
        <translation>Patch-Fehler</translation>
    </message>
    <message>
        <source>No recording loaded.</source>
        <translation>Keine Aufnahme geladen.</translation>
    </message>
    <message>
        <source>This patch has no groups.</source>
        <translation>Dieser Patch hat keine Gruppen.</translation>
    </message>
    <message>
        <source>No set loaded. Give every group its own GPS-Sync recording.</source>
        <translation>Kein Set geladen. Weisen Sie jeder Gruppe eine eigene GPS-Sync-Aufnahme zu.</translation>
    </message>
    <message>
        <source>Patch loaded but contains no drawable pixels. Check that the patch was saved from the Patch Editor with its layout.</source>
        <translation>Patch geladen, enthält aber keine darstellbaren Pixel. Prüfen Sie, ob der Patch im Patch-Editor mit seinem Layout gespeichert wurde.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms.</source>
        <translation>%1 in %2 ms geladen.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms with %3 warning(s) - see the Patch tab.</source>
        <translation>%1 in %2 ms geladen, mit %3 Warnung(en) - siehe Tab „Patch“.</translation>
    </message>
    <message>
        <source>%1 pixels drawn.</source>
        <translation>%1 Pixel gezeichnet.</translation>
    </message>
    <message>
        <source>A copy of the patch and its warnings is in %1</source>
        <translation>Eine Kopie des Patches und seiner Warnungen liegt in %1</translation>
    </message>
    <message>
        <source>There is no set to play. Fill in the group recordings and press Load set first.</source>
        <translation>Es gibt kein Set zum Abspielen. Zuerst die Gruppenaufnahmen eintragen und auf „Set laden“ klicken.</translation>
    </message>
    <message>
        <source>There is no recording to play. Load a .tpx file first.</source>
        <translation>Es gibt keine Aufnahme zum Abspielen. Zuerst eine .tpx-Datei laden.</translation>
    </message>
    <message>
        <source>Nothing to play - no recording is loaded.</source>
        <translation>Nichts abzuspielen - keine Aufnahme geladen.</translation>
    </message>
    <message>
        <source>Playback controls work in Recorded playback mode.</source>
        <translation>Die Wiedergabesteuerung funktioniert im Modus „Aufnahme-Wiedergabe“.</translation>
    </message>
    <message>
        <source>Playing %1 recording(s) in step.</source>
        <translation>%1 Aufnahme(n) werden synchron abgespielt.</translation>
    </message>
    <message>
        <source>Playing.</source>
        <translation>Wiedergabe läuft.</translation>
    </message>
    <message>
        <source>Reached the end of the recording.</source>
        <translation>Ende der Aufnahme erreicht.</translation>
    </message>
    <message>
        <source>Rewound to the first frame.</source>
        <translation>Zum ersten Bild zurückgesetzt.</translation>
    </message>
    <message>
        <source>%1 frames at %2 fps = %3 s</source>
        <translation>%1 Bilder bei %2 fps = %3 s</translation>
    </message>
    <message>
        <source>This machine is not sustaining %1 fps (about %2 fps measured). Playback continues and drops frames to stay in real time; lower the fps yourself if you want every frame shown.</source>
        <translation>Dieser Rechner hält %1 fps nicht durch (gemessen etwa %2 fps). Die Wiedergabe läuft weiter und verwirft Bilder, um in Echtzeit zu bleiben; senken Sie die fps selbst, wenn jedes Bild angezeigt werden soll.</translation>
    </message>
    <message>
        <source>Sustaining about %1 fps.</source>
        <translation>Hält etwa %1 fps.</translation>
    </message>
    <message>
        <source>GPS Mirra: one recording per group, all driven from one clock.</source>
        <translation>GPS Mirra: eine Aufnahme pro Gruppe, alle von einem gemeinsamen Takt gesteuert.</translation>
    </message>
    <message>
        <source>Standard Art-Net: a single recording drives the whole patch.</source>
        <translation>Standard-Art-Net: Eine einzige Aufnahme steuert den gesamten Patch.</translation>
    </message>
    <message>
        <source>Enter a .tpx path or pick one with the ... button.</source>
        <translation>Einen .tpx-Pfad eingeben oder über die Schaltfläche ... auswählen.</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 frames · %4 s at %5 fps</source>
        <translation>%1 · %2 · %3 Bilder · %4 s bei %5 fps</translation>
    </message>
    <message>
        <source>No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe.</source>
        <translation>Kein Patch geladen - der Monitor bleibt dunkel; der DMX-Tab zeigt jedes aufgenommene Universum.</translation>
    </message>
    <message>
        <source>Space plays and pauses.</source>
        <translation>Die Leertaste startet und pausiert die Wiedergabe.</translation>
    </message>
    <message>
        <source>White channel contribution off.</source>
        <translation>Weißkanal-Anteil aus.</translation>
    </message>
    <message>
        <source>This patch has no W / CW / WW channels - white contribution has nothing to add.</source>
        <translation>Dieser Patch hat keine Kanäle W / CW / WW - der Weißanteil hat nichts hinzuzufügen.</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px mit Weiß (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>peak white value %1 - contribution applied.</source>
        <translation>höchster Weißwert %1 - Anteil wird angewendet.</translation>
    </message>
    <message>
        <source>but every white value received so far is 0. MOX writes 0 to these channels unless White Channel is configured in the project.</source>
        <translation>aber jeder bisher empfangene Weißwert ist 0. MOX schreibt 0 in diese Kanäle, sofern White Channel nicht im Projekt konfiguriert ist.</translation>
    </message>
    <message>
        <source>%1 / %2 · port 0x%3 · channel %4 · Z %5 · rgb(%6, %7, %8)</source>
        <translation>%1 / %2 · Port 0x%3 · Kanal %4 · Z %5 · rgb(%6, %7, %8)</translation>
    </message>
    <message>
        <source>The system gives this node a receive queue of only %1 KB (%2 KB asked for): a burst the program cannot read at once is lost. Raise the limit (net.core.rmem_max on Linux).</source>
        <translation>Das System gibt diesem Node nur eine Empfangswarteschlange von %1 KB (%2 KB angefordert): Ein Paketschwall, den das Programm nicht sofort lesen kann, geht verloren. Erhöhen Sie die Grenze (net.core.rmem_max unter Linux).</translation>
    </message>
    <message>
        <source>The window shows each theme as you select it.</source>
        <translation>Das Fenster zeigt jedes Farbschema, sobald Sie es auswählen.</translation>
    </message>
    <message>
        <source>Network log (*.tlog)</source>
        <translation>Netzwerk-Log (*.tlog)</translation>
    </message>
    <message>
        <source>Wireshark capture (*.pcapng)</source>
        <translation>Wireshark-Mitschnitt (*.pcapng)</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV-Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>Open Network Log</source>
        <translation>Netzwerk-Log öffnen</translation>
    </message>
    <message>
        <source>Network logs and captures (*.tlog *.pcapng *.pcap);;All files (*)</source>
        <translation>Netzwerk-Logs und Mitschnitte (*.tlog *.pcapng *.pcap);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Network log not opened: %1</source>
        <translation>Netzwerk-Log nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Netzwerk-Log</translation>
    </message>
    <message>
        <source>Opened %1: %2 records.</source>
        <translation>%1 geöffnet: %2 Datensätze.</translation>
    </message>
    <message>
        <source>Save Network Log As</source>
        <translation>Netzwerk-Log speichern unter</translation>
    </message>
    <message>
        <source>The filter shows %1 of %2 records. Save only the records it shows?</source>
        <translation>Der Filter zeigt %1 von %2 Datensätzen. Nur die angezeigten Datensätze speichern?</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Network log saved to %1 (%2 records).</source>
        <translation>Netzwerk-Log gespeichert unter %1 (%2 Datensätze).</translation>
    </message>
    <message>
        <source>See every packet this node receives and sends.</source>
        <translation>Jedes Paket anzeigen, das dieser Node empfängt und sendet.</translation>
    </message>
    <message>
        <source>Capturing on %1.</source>
        <translation>Mitschnitt auf %1 läuft.</translation>
    </message>
    <message>
        <source>Starting the capture on %1...</source>
        <translation>Mitschnitt auf %1 wird gestartet...</translation>
    </message>
    <message>
        <source>Capture on %1 stopped: %2 packets, %3 dropped by the system.</source>
        <translation>Mitschnitt auf %1 gestoppt: %2 Pakete, %3 vom System verworfen.</translation>
    </message>
    <message>
        <source>How to load a patch, play, go live, record, log and capture.</source>
        <translation>Wie Sie einen Patch laden, abspielen, live gehen, aufnehmen, protokollieren und mitschneiden.</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All files (*)</source>
        <translation>Aufnahmen und Mitschnitte (*.tpx *.pcapng *.pcap);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>libpcap (The Tcpdump Group), in the capture helper, under the BSD licence.</source>
        <translation>libpcap (The Tcpdump Group), im Mitschnitt-Hilfsprogramm, unter der BSD-Lizenz.</translation>
    </message>
    <message>
        <source>The capture could not be read: %1</source>
        <translation>Der Mitschnitt konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>capture of %1 ArtDmx packets, as %2</source>
        <translation>Mitschnitt von %1 ArtDmx-Paketen, als %2</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>%1 (subnet of %2, %3)</source>
        <translation>%1 (Subnetz von %2, %3)</translation>
    </message>
    <message>
        <source>255.255.255.255 (limited broadcast)</source>
        <translation>255.255.255.255 (Limited Broadcast)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>&quot;%1&quot; ist keine IPv4-Adresse.</translation>
    </message>
    <message>
        <source>Cannot scan: %1</source>
        <translation>Scan nicht möglich: %1</translation>
    </message>
    <message>
        <source>Polling %1 every 2.5 s...</source>
        <translation>Poll an %1 alle 2,5 s...</translation>
    </message>
    <message>
        <source>Export Devices</source>
        <translation>Geräte exportieren</translation>
    </message>
    <message>
        <source>Devices exported to %1.</source>
        <translation>Geräte nach %1 exportiert.</translation>
    </message>
    <message>
        <source>List the Art-Net nodes on the network and what is wrong with their replies.</source>
        <translation>Die Art-Net-Nodes im Netzwerk auflisten und zeigen, was an ihren Antworten nicht stimmt.</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe: ok, unstable, conflict (several senders), stale (nothing for 4 s) or never received. Hover a fixture for its universe&apos;s figures.</source>
        <translation>Jedes Fixture in der Zustandsfarbe seines Universums darstellen: ok, instabil, Konflikt (mehrere Quellen), veraltet (4 s lang nichts) oder nie empfangen. Mit der Maus über ein Fixture fahren, um die Werte seines Universums zu sehen.</translation>
    </message>
    <message>
        <source>A GPS-Sync set is not analysed: the table follows the live node or a Standard Art-Net recording.</source>
        <translation>Ein GPS-Sync-Set wird nicht ausgewertet: Die Tabelle folgt dem Live-Node oder einer Standard-Art-Net-Aufnahme.</translation>
    </message>
    <message>
        <source>No recording loaded: open a recording or a capture, or listen live.</source>
        <translation>Keine Aufnahme geladen: Öffnen Sie eine Aufnahme oder einen Mitschnitt, oder empfangen Sie live.</translation>
    </message>
    <message>
        <source>Capture %1, over the whole file.</source>
        <translation>Mitschnitt %1, über die gesamte Datei.</translation>
    </message>
    <message>
        <source>Recording %1 at %2 fps, over the whole file (a recording keeps no senders or sequence numbers).</source>
        <translation>Aufnahme %1 mit %2 fps, über die gesamte Datei (eine Aufnahme speichert weder Quellen noch Sequenznummern).</translation>
    </message>
    <message>
        <source>Capture %1 could not be read: %2</source>
        <translation>Mitschnitt %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Live: the node on %1:%2, fps over the last second.</source>
        <translation>Live: der Node auf %1:%2, fps über die letzte Sekunde.</translation>
    </message>
    <message>
        <source>Live: the node is not listening.</source>
        <translation>Live: Der Node empfängt nicht.</translation>
    </message>
    <message>
        <source>Export Universe Health</source>
        <translation>Universum-Zustand exportieren</translation>
    </message>
    <message>
        <source>Universe health exported to %1.</source>
        <translation>Universum-Zustand nach %1 exportiert.</translation>
    </message>
    <message>
        <source>Health Overlay</source>
        <translation>Zustands-Overlay</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe.</source>
        <translation>Jedes Fixture in der Zustandsfarbe seines Universums darstellen.</translation>
    </message>
    <message>
        <source>Universe Health...</source>
        <translation>Universum-Zustand...</translation>
    </message>
    <message>
        <source>Per universe and sender: rate, lost and late packets, conflicts, ArtSync.</source>
        <translation>Pro Universum und Quelle: Rate, verlorene und verspätete Pakete, Konflikte, ArtSync.</translation>
    </message>
</context>
<context>
    <name>MoxStyle</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Dim red</source>
        <translation>Gedämpftes Rot</translation>
    </message>
</context>
<context>
    <name>NodeDiscoveryWindow</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>this program</source>
        <translation>dieses Programm</translation>
    </message>
    <message>
        <source>online</source>
        <translation>online</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n Befund</numerusform>
            <numerusform>%n Befunde</numerusform>
        </translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Bericht: %1</translation>
    </message>
    <message>
        <source>Finding: %1</source>
        <translation>Befund: %1</translation>
    </message>
    <message>
        <source>Node Discovery</source>
        <translation>Node-Suche</translation>
    </message>
    <message>
        <source>Poll:</source>
        <translation>Poll:</translation>
    </message>
    <message>
        <source>Poll target</source>
        <translation>Poll-Ziel</translation>
    </message>
    <message>
        <source>Where ArtPoll goes: an interface&apos;s subnet broadcast, the limited broadcast, or one address typed in.</source>
        <translation>Wohin ArtPoll gesendet wird: der Subnetz-Broadcast einer Schnittstelle, der Limited Broadcast oder eine eingegebene Adresse.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Send ArtPoll now and every 2.5 s while this window is open.</source>
        <translation>ArtPoll jetzt und dann alle 2,5 s senden, solange dieses Fenster geöffnet ist.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>CSV exportieren...</translation>
    </message>
    <message>
        <source>Scan state</source>
        <translation>Scanstatus</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Kurzname</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Langname</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>OEM</source>
        <translation>OEM</translation>
    </message>
    <message>
        <source>ESTA</source>
        <translation>ESTA</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>Patched universes without a device</source>
        <translation>Gepatchte Universen ohne Gerät</translation>
    </message>
    <message>
        <source>Load a patch to see which of its universes no device outputs.</source>
        <translation>Einen Patch laden, um zu sehen, welche seiner Universen kein Gerät ausgibt.</translation>
    </message>
    <message>
        <source>Every patched universe has a device that outputs it.</source>
        <translation>Jedes gepatchte Universum hat ein Gerät, das es ausgibt.</translation>
    </message>
    <message>
        <source>Patched universes no device outputs: %1</source>
        <translation>Gepatchte Universen, die kein Gerät ausgibt: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>PacketListModel</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Dir</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>OpCode</source>
        <translation>OpCode</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Universum</translation>
    </message>
    <message>
        <source>Seq</source>
        <translation>Seq</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>out</source>
        <translation>ausgehend</translation>
    </message>
    <message>
        <source>in</source>
        <translation>eingehend</translation>
    </message>
</context>
<context>
    <name>PacketLog</name>
    <message>
        <source>The capture is cut short in packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>Der Mitschnitt bricht bei Paket %1 ab (bei Byte %2); die %3 Pakete davor wurden gelesen.</translation>
    </message>
    <message>
        <source>The capture is damaged at packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>Der Mitschnitt ist bei Paket %1 beschädigt (bei Byte %2); die %3 Pakete davor wurden gelesen.</translation>
    </message>
    <message>
        <source>%1 packets were not UDP over IPv4 and were left out.</source>
        <translation>%1 Pakete waren kein UDP über IPv4 und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>This is not a pcap capture file.</source>
        <translation>Dies ist keine pcap-Mitschnittdatei.</translation>
    </message>
    <message>
        <source>This is not a pcapng capture file.</source>
        <translation>Dies ist keine pcapng-Mitschnittdatei.</translation>
    </message>
    <message>
        <source>Unexpected end of filter.</source>
        <translation>Unerwartetes Ende des Filters.</translation>
    </message>
    <message>
        <source>Missing &apos;)&apos;.</source>
        <translation>&apos;)&apos; fehlt.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Wert nach &apos;%1&apos; fehlt.</translation>
    </message>
    <message>
        <source>Unexpected token: %1</source>
        <translation>Unerwartetes Token: %1</translation>
    </message>
    <message>
        <source>The filter is nested too deeply (more than %1 levels of &apos;!&apos; and &apos;(&apos;).</source>
        <translation>Der Filter ist zu tief verschachtelt (mehr als %1 Ebenen von &apos;!&apos; und &apos;(&apos;).</translation>
    </message>
    <message>
        <source>source or destination</source>
        <translation>Quelle oder Ziel</translation>
    </message>
    <message>
        <source>This is neither a packet log (.tlog) nor a pcapng or pcap capture.</source>
        <translation>Dies ist weder ein Paket-Log (.tlog) noch ein pcapng- oder pcap-Mitschnitt.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Cannot write the packet log %1: %2</source>
        <translation>Das Paket-Log %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>SEND FAILED</source>
        <translation>SENDEN FEHLGESCHLAGEN</translation>
    </message>
    <message>
        <source>NOT SENT</source>
        <translation>NICHT GESENDET</translation>
    </message>
    <message>
        <source>PARTIAL WRITE</source>
        <translation>TEILWEISE GESCHRIEBEN</translation>
    </message>
    <message>
        <source>device offline (no ArtPollReply within the liveness window)</source>
        <translation>Gerät offline (kein ArtPollReply innerhalb des Lebenszeichen-Zeitfensters)</translation>
    </message>
    <message>
        <source>output is closed (udpTransferOpen = false)</source>
        <translation>Ausgang ist geschlossen (udpTransferOpen = false)</translation>
    </message>
    <message>
        <source>Device Manager test broadcast is active</source>
        <translation>Test-Broadcast des Device Managers ist aktiv</translation>
    </message>
    <message>
        <source>socket unavailable (adapter is being switched)</source>
        <translation>Socket nicht verfügbar (Adapter wird gewechselt)</translation>
    </message>
    <message>
        <source>target address could not be resolved</source>
        <translation>Zieladresse konnte nicht aufgelöst werden</translation>
    </message>
    <message>
        <source>Access denied. A broadcast address was used on a socket that does not have SO_BROADCAST enabled.</source>
        <translation>Zugriff verweigert. Eine Broadcast-Adresse wurde auf einem Socket verwendet, bei dem SO_BROADCAST nicht aktiviert ist.</translation>
    </message>
    <message>
        <source>The datagram is larger than the maximum the transport supports. Check the channel count and the interface MTU.</source>
        <translation>Das Datagramm ist größer als das vom Transport unterstützte Maximum. Prüfen Sie die Kanalanzahl und die MTU der Schnittstelle.</translation>
    </message>
    <message>
        <source>The requested address is not valid in this context. The adapter may have lost its IP address.</source>
        <translation>Die angeforderte Adresse ist in diesem Kontext ungültig. Der Adapter hat möglicherweise seine IP-Adresse verloren.</translation>
    </message>
    <message>
        <source>The network is down. The adapter is disconnected or disabled.</source>
        <translation>Das Netzwerk ist nicht verfügbar. Der Adapter ist getrennt oder deaktiviert.</translation>
    </message>
    <message>
        <source>The network is unreachable. There is no route from the selected adapter to this destination.</source>
        <translation>Das Netzwerk ist nicht erreichbar. Es gibt keine Route vom gewählten Adapter zu diesem Ziel.</translation>
    </message>
    <message>
        <source>The remote host reset the connection. An earlier packet triggered an ICMP port-unreachable reply, which means nothing is listening on the destination port.</source>
        <translation>Der entfernte Host hat die Verbindung zurückgesetzt. Ein früheres Paket hat eine ICMP-Antwort „Port Unreachable“ ausgelöst, d. h. auf dem Zielport lauscht nichts.</translation>
    </message>
    <message>
        <source>No buffer space available. The send queue is full: the interface cannot drain packets as fast as they are being produced, or the destination MAC has not been resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or checking the link usually resolves it.</source>
        <translation>Kein Pufferspeicher verfügbar. Die Sendewarteschlange ist voll: Die Schnittstelle kann Pakete nicht so schnell abarbeiten, wie sie erzeugt werden, oder die Ziel-MAC wurde nicht aufgelöst und Datagramme stauen sich, während sie auf ARP warten. Eine niedrigere Bildrate oder eine Prüfung der Verbindung behebt das meist.</translation>
    </message>
    <message>
        <source>The destination host is down.</source>
        <translation>Der Zielhost ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>No route to host. ARP could not resolve the destination MAC address, so the frame was never built. This is the usual cause when nothing appears on the wire at all.</source>
        <translation>Keine Route zum Host. ARP konnte die Ziel-MAC-Adresse nicht auflösen, daher wurde der Ethernet-Frame nie erzeugt. Das ist die übliche Ursache, wenn überhaupt nichts auf der Leitung erscheint.</translation>
    </message>
    <message>
        <source>Cannot write the capture file: %1</source>
        <translation>Die Mitschnittdatei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>This is not a packet log file (.tlog).</source>
        <translation>Dies ist keine Paket-Log-Datei (.tlog).</translation>
    </message>
    <message>
        <source>The packet log is version %1 with %2-byte records; this program reads version 1 with 296-byte records.</source>
        <translation>Das Paket-Log hat Version %1 mit %2-Byte-Datensätzen; dieses Programm liest Version 1 mit 296-Byte-Datensätzen.</translation>
    </message>
    <message>
        <source>The packet log&apos;s header is cut short.</source>
        <translation>Der Header des Paket-Logs ist unvollständig.</translation>
    </message>
    <message>
        <source>Record %1 (at byte %2) is damaged; the %3 records before it were read.</source>
        <translation>Datensatz %1 (bei Byte %2) ist beschädigt; die %3 Datensätze davor wurden gelesen.</translation>
    </message>
    <message>
        <source>The packet log is cut short in record %1 (at byte %2); the %3 records before it were read.</source>
        <translation>Das Paket-Log bricht bei Datensatz %1 ab (bei Byte %2); die %3 Datensätze davor wurden gelesen.</translation>
    </message>
    <message>
        <source>The capture helper (%1) is not installed beside the program, so adapter capture is not available.</source>
        <translation>Das Mitschnitt-Hilfsprogramm (%1) ist nicht neben dem Programm installiert, daher ist der Mitschnitt an einem Adapter nicht verfügbar.</translation>
    </message>
    <message>
        <source>The capture helper could not list the adapters: %1</source>
        <translation>Das Mitschnitt-Hilfsprogramm konnte die Adapter nicht auflisten: %1</translation>
    </message>
    <message>
        <source>The capture helper could not be started: %1</source>
        <translation>Das Mitschnitt-Hilfsprogramm konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The capture helper&apos;s output is damaged: %1</source>
        <translation>Die Ausgabe des Mitschnitt-Hilfsprogramms ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The capture helper stopped unexpectedly; the %1 packets captured until then are kept.</source>
        <translation>Das Mitschnitt-Hilfsprogramm wurde unerwartet beendet; die %1 bis dahin mitgeschnittenen Pakete bleiben erhalten.</translation>
    </message>
    <message>
        <source>Capturing on %1 is not permitted (%2). Only the capture helper may capture: join the group &quot;%3&quot; (sudo usermod -aG %3 $USER, then log in again), or give a helper you built yourself the right with: sudo setcap cap_net_raw,cap_net_admin=eip %4</source>
        <translation>Mitschneiden auf %1 ist nicht erlaubt (%2). Nur das Mitschnitt-Hilfsprogramm darf mitschneiden: Treten Sie der Gruppe &quot;%3&quot; bei (sudo usermod -aG %3 $USER, danach neu anmelden), oder geben Sie einem selbst gebauten Hilfsprogramm das Recht mit: sudo setcap cap_net_raw,cap_net_admin=eip %4</translation>
    </message>
    <message>
        <source>There is no adapter %1 to capture on.</source>
        <translation>Es gibt keinen Adapter %1 zum Mitschneiden.</translation>
    </message>
    <message>
        <source>Capture on %1 failed: %2</source>
        <translation>Mitschnitt auf %1 fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>This is neither a pcapng nor a pcap capture.</source>
        <translation>Dies ist weder ein pcapng- noch ein pcap-Mitschnitt.</translation>
    </message>
    <message>
        <source>The capture could not be written: %1</source>
        <translation>Der Mitschnitt konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>PacketLogWindow</name>
    <message>
        <source>%1 records · %2 shown · %3 dropped</source>
        <translation>%1 Datensätze · %2 angezeigt · %3 verworfen</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Netzwerk-Log</translation>
    </message>
    <message>
        <source>Network Log - %1 (read-only)</source>
        <translation>Netzwerk-Log - %1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop adding new packets to the list; the node goes on receiving.</source>
        <translation>Keine neuen Pakete mehr in die Liste aufnehmen; der Node empfängt weiter.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Packet fields</source>
        <translation>Paketfelder</translation>
    </message>
    <message>
        <source>Packet bytes</source>
        <translation>Paketbytes</translation>
    </message>
    <message>
        <source>Reading stopped; the records read until then are shown.</source>
        <translation>Einlesen abgebrochen; die bis dahin gelesenen Datensätze werden angezeigt.</translation>
    </message>
    <message>
        <source>Capture on:</source>
        <translation>Mitschnitt auf:</translation>
    </message>
    <message>
        <source>Capture adapter</source>
        <translation>Mitschnitt-Adapter</translation>
    </message>
    <message>
        <source>The network adapter to capture Art-Net from, as a packet analyser does.</source>
        <translation>Der Netzwerkadapter, an dem Art-Net mitgeschnitten wird, wie es ein Paketanalysator tut.</translation>
    </message>
    <message>
        <source>Stop Capture</source>
        <translation>Mitschnitt stoppen</translation>
    </message>
    <message>
        <source>Start Capture</source>
        <translation>Mitschnitt starten</translation>
    </message>
    <message>
        <source>Capture every Art-Net packet on the adapter, also those not meant for this node.</source>
        <translation>Jedes Art-Net-Paket am Adapter mitschneiden, auch die nicht für diesen Node bestimmten.</translation>
    </message>
    <message>
        <source>Capture state</source>
        <translation>Mitschnittstatus</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>Datei wird gelesen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop reading the file and keep the records read so far.</source>
        <translation>Einlesen der Datei abbrechen und die bisher gelesenen Datensätze behalten.</translation>
    </message>
</context>
<context>
    <name>PatchBar</name>
    <message>
        <source>No patch loaded.</source>
        <translation>Kein Patch geladen.</translation>
    </message>
    <message>
        <source>Patch File</source>
        <translation>Patch-Datei</translation>
    </message>
    <message>
        <source>Path to a patch file (.tpatch, .mpz, .elm)</source>
        <translation>Pfad zu einer Patch-Datei (.tpatch, .mpz, .elm)</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a patch file</source>
        <translation>Nach einer Patch-Datei suchen</translation>
    </message>
    <message>
        <source>Patch file path</source>
        <translation>Pfad der Patch-Datei</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Load the patch and build the monitor</source>
        <translation>Patch laden und Monitor aufbauen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Lädt...</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Enter a patch path or pick one with the ... button.</source>
        <translation>Einen Patch-Pfad eingeben oder über die Schaltfläche ... auswählen.</translation>
    </message>
    <message>
        <source>Select Patch File</source>
        <translation>Patch-Datei wählen</translation>
    </message>
    <message>
        <source>Patch Files (*.tpatch *.mpz *.elm);;Torvane MOX Patch (*.tpatch);;MADRIX 5 Patch (*.mpz);;ENTTEC ELM Project (*.elm);;All Files (*)</source>
        <translation>Patch-Dateien (*.tpatch *.mpz *.elm);;Torvane-MOX-Patch (*.tpatch);;MADRIX-5-Patch (*.mpz);;ENTTEC-ELM-Projekt (*.elm);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>PatchSummaryPanel</name>
    <message>
        <source>Patch Summary</source>
        <translation>Patch-Übersicht</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>Kein Patch geladen.</translation>
    </message>
    <message>
        <source>Universes</source>
        <translation>Universen</translation>
    </message>
    <message>
        <source>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, universe list and channel ranges.</source>
        <translation>Einen Patch laden (.tpatch, MADRIX .mpz oder ELM .elm), um seine Struktur, die Liste der Universen und die Kanalbereiche zu sehen.</translation>
    </message>
    <message>
        <source>device %1</source>
        <translation>Gerät %1</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Gerät #%1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>Format %1</translation>
    </message>
    <message>
        <source>imported from %1</source>
        <translation>importiert aus %1</translation>
    </message>
    <message>
        <source>(unnamed project)</source>
        <translation>(unbenanntes Projekt)</translation>
    </message>
    <message>
        <source>%1 ch limit</source>
        <translation>Limit %1 Kanäle</translation>
    </message>
    <message>
        <source>no white channels</source>
        <translation>keine Weißkanäle</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px mit Weiß (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>%1 groups · %2 universes · %3 fixtures</source>
        <translation>%1 Gruppen · %2 Universen · %3 Fixtures</translation>
    </message>
    <message>
        <source>%1 pixels (%2 drawable) · %3 kinetics</source>
        <translation>%1 Pixel (%2 darstellbar) · %3 Kinetik-Elemente</translation>
    </message>
    <message>
        <source>Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device Manager, set the Universe of this tester&apos;s &quot;BindIdx N&quot; row to N.</source>
        <translation>Art-Net: MADRIX-Universum N kommt hier als Port-Address N-1 an. Setzen Sie im MADRIX Device Manager das Universe der Zeile &quot;BindIdx N&quot; dieses Testers auf N.</translation>
    </message>
    <message>
        <source>Art-Net: the universes are taken from the ELM project as they are (ELM universe = Port-Address).</source>
        <translation>Art-Net: Die Universen werden unverändert aus dem ELM-Projekt übernommen (ELM-Universum = Port-Address).</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
</context>
<context>
    <name>PixelTexts</name>
    <message>
        <source>%1 @ %2</source>
        <translation>%1 @ %2</translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation>Fixture</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
    <message>
        <source>Torvoverse: %1</source>
        <translation>Torvoverse: %1</translation>
    </message>
    <message>
        <source>Port address: 0x%1</source>
        <translation>Port-Address: 0x%1</translation>
    </message>
    <message>
        <source>Start channel: %1</source>
        <translation>Startkanal: %1</translation>
    </message>
    <message>
        <source>Slots: %1</source>
        <translation>Slots: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>PlaybackPanel</name>
    <message>
        <source>Path to a .tpx recording</source>
        <translation>Pfad zu einer .tpx-Aufnahme</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a .tpx recording</source>
        <translation>Nach einer .tpx-Aufnahme suchen</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Stop and return to the first frame</source>
        <translation>Stoppen und zum ersten Bild zurück</translation>
    </message>
    <message>
        <source>Frames are presented at exactly this rate.
The timestamp stored in the file is ignored - its scale is not reliable.</source>
        <translation>Die Bilder werden mit genau dieser Rate ausgegeben.
Der in der Datei gespeicherte Zeitstempel wird ignoriert - seine Skalierung ist nicht zuverlässig.</translation>
    </message>
    <message>
        <source>Loop playback</source>
        <translation>Wiedergabe in Schleife</translation>
    </message>
    <message>
        <source>Play the recording end to end, over and over.
This is how you check whether a period-based recording loops seamlessly.</source>
        <translation>Die Aufnahme von Anfang bis Ende immer wieder abspielen.
So prüfen Sie, ob eine periodenbasierte Aufnahme nahtlos in Schleife läuft.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Bild %1 / %2</translation>
    </message>
    <message>
        <source>Select Recording</source>
        <translation>Aufnahme wählen</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All Files (*)</source>
        <translation>Aufnahmen und Mitschnitte (*.tpx *.pcapng *.pcap);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>PlaybackTransport</name>
    <message>
        <source>Measured %1 fps</source>
        <translation>Gemessen %1 fps</translation>
    </message>
    <message>
        <source>%1 frame(s) dropped</source>
        <translation>%1 Bild(er) verworfen</translation>
    </message>
    <message>
        <source>%1 ms/frame (max %2 fps)</source>
        <translation>%1 ms/Bild (max. %2 fps)</translation>
    </message>
    <message>
        <source>%1 ms/frame</source>
        <translation>%1 ms/Bild</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Wiedergabeposition</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Verzeichnis</translation>
    </message>
</context>
<context>
    <name>RecordingWriter</name>
    <message>
        <source>The file was removed or renamed while recording.</source>
        <translation>Die Datei wurde während der Aufnahme entfernt oder umbenannt.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TPatch</name>
    <message>
        <source>the &lt;console&gt; root element is missing</source>
        <translation>das Wurzelelement &lt;console&gt; fehlt</translation>
    </message>
    <message>
        <source>the document has no root element</source>
        <translation>das Dokument hat kein Wurzelelement</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (Zeile %2)</translation>
    </message>
    <message>
        <source>%1 fixture(s) use 16-bit LED types (%2); the monitor shows the high byte of each color only.</source>
        <translation>%1 Fixture(s) verwenden 16-Bit-LED-Typen (%2); der Monitor zeigt nur das High-Byte jeder Farbe.</translation>
    </message>
    <message>
        <source>Color channels the tester cannot show yet were ignored: %1</source>
        <translation>Farbkanäle, die der Tester noch nicht darstellen kann, wurden ignoriert: %1</translation>
    </message>
    <message>
        <source>%1 fixture(s) have a pixel split across a universe boundary; its channels in the next universe are not shown.</source>
        <translation>Bei %1 Fixture(s) ist ein Pixel über eine Universumsgrenze aufgeteilt; seine Kanäle im nächsten Universum werden nicht angezeigt.</translation>
    </message>
    <message>
        <source>%1 fixture(s) run past DMX channel 512 of their universe; channels beyond 512 are not shown.</source>
        <translation>%1 Fixture(s) reichen über DMX-Kanal 512 ihres Universums hinaus; Kanäle jenseits von 512 werden nicht angezeigt.</translation>
    </message>
    <message>
        <source>%1 fixture(s) output %2 rather than Art-Net and were skipped.</source>
        <translation>%1 Fixture(s) geben %2 statt Art-Net aus und wurden übersprungen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use LED types the tester does not know (%2) and were skipped.</source>
        <translation>%1 Fixture(s) verwenden LED-Typen, die der Tester nicht kennt (%2), und wurden übersprungen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use a universe that does not fit an Art-Net Port-Address and were skipped.</source>
        <translation>%1 Fixture(s) verwenden ein Universum, das nicht in eine Art-Net-Port-Address passt, und wurden übersprungen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) are incomplete in the file and were skipped.</source>
        <translation>%1 Fixture(s) sind in der Datei unvollständig und wurden übersprungen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) were skipped: the project has more than %2 LEDs.</source>
        <translation>%1 Fixture(s) wurden übersprungen: Das Projekt hat mehr als %2 LEDs.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable ELM project: %2</source>
        <translation>&quot;%1&quot; ist kein lesbares ELM-Projekt: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no DMX fixtures that can be shown.</source>
        <translation>&quot;%1&quot; enthält keine darstellbaren DMX-Fixtures.</translation>
    </message>
    <message>
        <source>zlib could not be initialised</source>
        <translation>zlib konnte nicht initialisiert werden</translation>
    </message>
    <message>
        <source>the unpacked data is too large</source>
        <translation>die entpackten Daten sind zu groß</translation>
    </message>
    <message>
        <source>the file is truncated</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>zlib error %1</source>
        <translation>zlib-Fehler %1</translation>
    </message>
    <message>
        <source>Error:</source>
        <translation>Fehler:</translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation>Warnungen:</translation>
    </message>
    <message>
        <source>the &lt;madrix_patch&gt; root element is missing</source>
        <translation>das Wurzelelement &lt;madrix_patch&gt; fehlt</translation>
    </message>
    <message>
        <source>the &lt;fixture_list&gt; element is missing</source>
        <translation>das Element &lt;fixture_list&gt; fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable MADRIX patch: %2</source>
        <translation>&quot;%1&quot; ist kein lesbarer MADRIX-Patch: %2</translation>
    </message>
    <message>
        <source>Some MADRIX fields are not supported yet and were ignored: %1</source>
        <translation>Einige MADRIX-Felder werden noch nicht unterstützt und wurden ignoriert: %1</translation>
    </message>
    <message>
        <source>%1 MADRIX fixture group(s) were found, but groups are not imported yet; all fixtures were placed in one group.</source>
        <translation>%1 MADRIX-Fixture-Gruppe(n) gefunden, Gruppen werden aber noch nicht importiert; alle Fixtures wurden in eine Gruppe gelegt.</translation>
    </message>
    <message>
        <source>%1 rotated multi-pixel fixture(s): the pixel layout after rotation has not been verified against MADRIX yet. Check them on the monitor.</source>
        <translation>%1 gedrehte Multi-Pixel-Fixture(s): Das Pixel-Layout nach der Drehung wurde noch nicht mit MADRIX abgeglichen. Bitte auf dem Monitor prüfen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have pixels whose color channels span more than 6 DMX channels; only the first 6 are shown.</source>
        <translation>%1 Fixture(s) haben Pixel, deren Farbkanäle mehr als 6 DMX-Kanäle umfassen; nur die ersten 6 werden angezeigt.</translation>
    </message>
    <message>
        <source>%1 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs reaches Art-Net.</source>
        <translation>%1 DVI-Fixture(s) wurden übersprungen: Sie haben keine DMX-Adresse, daher gelangt nichts von ihnen zu Art-Net.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no color channel the tester can show and were skipped.</source>
        <translation>%1 Fixture(s) haben keinen Farbkanal, den der Tester darstellen kann, und wurden übersprungen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved by %2 (file version %3), which this importer has not been checked against. Verify the result on the monitor.</source>
        <translation>&quot;%1&quot; wurde mit %2 gespeichert (Dateiversion %3); dieser Importer wurde damit nicht getestet. Prüfen Sie das Ergebnis auf dem Monitor.</translation>
    </message>
    <message>
        <source>Could not open &quot;%1&quot;: %2</source>
        <translation>&quot;%1&quot; konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Gerät #%1</translation>
    </message>
    <message>
        <source>%1 fixtures overlap on %2 screen position(s) - only the topmost one is visible. Use the group filter to isolate a torvoverse.</source>
        <translation>%1 Fixtures überlappen an %2 Bildschirmposition(en) - nur das oberste ist sichtbar. Isolieren Sie ein Torvoverse mit dem Gruppenfilter.</translation>
    </message>
    <message>
        <source>Universe numbers above 15 are truncated to 4 bits on the wire (Art-Net PortAddress). Affected universes: %1</source>
        <translation>Universumsnummern über 15 werden auf der Leitung auf 4 Bit gekürzt (Art-Net PortAddress). Betroffene Universen: %1</translation>
    </message>
    <message>
        <source>%1 port address(es) are used by more than one torvoverse (%2). Recorded playback can still tell them apart by frame order, but a live capture at a single IP will only see one device&apos;s data.</source>
        <translation>%1 Port-Address(es) werden von mehr als einem Torvoverse verwendet (%2). Die Aufnahme-Wiedergabe kann sie noch über die Reihenfolge im Bild unterscheiden, ein Live-Mitschnitt an einer einzelnen IP sieht aber nur die Daten eines Geräts.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid .tpatch file: %2</source>
        <translation>&quot;%1&quot; ist keine gültige .tpatch-Datei: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no groups.</source>
        <translation>&quot;%1&quot; enthält keine Gruppen.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no usable scene layout and will not be drawn.</source>
        <translation>%1 Fixture(s) haben kein verwendbares Szenen-Layout und werden nicht gezeichnet.</translation>
    </message>
    <message>
        <source>(+%1 more)</source>
        <translation>(+%1 weitere)</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a recording.</source>
        <translation>&quot;%1&quot; ist ein Ordner, keine Aufnahme.</translation>
    </message>
    <message>
        <source>All %1 file(s) carry the %2-byte GPS metadata block</source>
        <translation>Alle %1 Datei(en) enthalten den %2-Byte-GPS-Metadatenblock</translation>
    </message>
    <message>
        <source>%1 file(s) are not GPS-Sync recordings</source>
        <translation>%1 Datei(en) sind keine GPS-Sync-Aufnahmen</translation>
    </message>
    <message>
        <source>%1 - these files begin directly with an Art-Net packet, with no GPS metadata block in front of it. They were recorded with GPS Sync Compatible Record OFF and belong in the Standard Art-Net tab.</source>
        <translation>%1 - diese Dateien beginnen direkt mit einem Art-Net-Paket, ohne vorangestellten GPS-Metadatenblock. Sie wurden mit ausgeschaltetem GPS Sync Compatible Record aufgenommen und gehören in den Tab „Standard-Art-Net“.</translation>
    </message>
    <message>
        <source>Patch has no drawable universes to compare against</source>
        <translation>Der Patch hat keine darstellbaren Universen zum Vergleichen</translation>
    </message>
    <message>
        <source>The recordings will still play, but nothing verifies that their universe layout matches this patch.</source>
        <translation>Die Aufnahmen werden trotzdem abgespielt, aber nichts prüft, ob ihre Universumsaufteilung zu diesem Patch passt.</translation>
    </message>
    <message>
        <source>%1: file has %2, patch expects %3</source>
        <translation>%1: Datei hat %2, Patch erwartet %3</translation>
    </message>
    <message>
        <source>Universe count per frame matches the patch in every group</source>
        <translation>Die Anzahl der Universen pro Bild stimmt in jeder Gruppe mit dem Patch überein</translation>
    </message>
    <message>
        <source>Universe count per frame does not match the patch</source>
        <translation>Die Anzahl der Universen pro Bild stimmt nicht mit dem Patch überein</translation>
    </message>
    <message>
        <source>%1. The recording was made from a different patch, or a file is assigned to the wrong group.</source>
        <translation>%1. Die Aufnahme stammt von einem anderen Patch, oder eine Datei ist der falschen Gruppe zugewiesen.</translation>
    </message>
    <message>
        <source>%1 (record %2 is universe %3, patch expects %4; expected order %5)</source>
        <translation>%1 (Datensatz %2 ist Universum %3, Patch erwartet %4; erwartete Reihenfolge %5)</translation>
    </message>
    <message>
        <source>Record order inside a frame matches the patch in every group</source>
        <translation>Die Reihenfolge der Datensätze im Bild stimmt in jeder Gruppe mit dem Patch überein</translation>
    </message>
    <message>
        <source>Record order inside a frame does not match the patch</source>
        <translation>Die Reihenfolge der Datensätze im Bild stimmt nicht mit dem Patch überein</translation>
    </message>
    <message>
        <source>%1. Every pixel still lights up, but on the wrong torvoverse - this is the failure that looks correct at a glance. Note: MOX writes the universe field of a GPS record as (subNet&lt;&lt;8)|universe, while the wire uses the 15-bit PortAddress; the two only differ when a universe number is above 15.</source>
        <translation>%1. Jedes Pixel leuchtet weiterhin, aber im falschen Torvoverse - dieser Fehler sieht auf den ersten Blick korrekt aus. Hinweis: MOX schreibt das Universe-Feld eines GPS-Datensatzes als (subNet&lt;&lt;8)|universe, während auf der Leitung die 15-Bit-PortAddress verwendet wird; beide unterscheiden sich nur, wenn eine Universumsnummer über 15 liegt.</translation>
    </message>
    <message>
        <source>%1: header says %2 bytes per frame, the file measures %3</source>
        <translation>%1: Header gibt %2 Byte pro Bild an, gemessen in der Datei: %3</translation>
    </message>
    <message>
        <source>%1: universeByteLength sums to %2 but frameByteSize says %3</source>
        <translation>%1: universeByteLength ergibt in Summe %2, frameByteSize gibt aber %3 an</translation>
    </message>
    <message>
        <source>Frame byte size in the header matches the packets on disk</source>
        <translation>Die Bildgröße in Byte im Header stimmt mit den Paketen auf dem Datenträger überein</translation>
    </message>
    <message>
        <source>Frame byte size in the header is wrong</source>
        <translation>Die Bildgröße in Byte im Header ist falsch</translation>
    </message>
    <message>
        <source>%1. A GPS device seeks by frameByteSize; a wrong value makes it land in the middle of a packet.</source>
        <translation>%1. Ein GPS-Gerät springt anhand von frameByteSize; ein falscher Wert lässt es mitten in einem Paket landen.</translation>
    </message>
    <message>
        <source>%1: %2 usable byte(s), %3 expected for %4 frame(s)</source>
        <translation>%1: %2 Byte verwendbar, %3 erwartet für %4 Bild(er)</translation>
    </message>
    <message>
        <source>Every frame occupies exactly the same number of bytes</source>
        <translation>Jedes Bild belegt genau gleich viele Byte</translation>
    </message>
    <message>
        <source>Some files carry bytes that do not form a whole frame</source>
        <translation>Einige Dateien enthalten Bytes, die kein ganzes Bild ergeben</translation>
    </message>
    <message>
        <source>%1. The recording was cut short, or the universe lengths changed while it was running.</source>
        <translation>%1. Die Aufnahme wurde vorzeitig beendet, oder die Universumslängen haben sich während der Aufnahme geändert.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>All %1 recording(s) are exactly %2 frame(s) long</source>
        <translation>Alle %1 Aufnahme(n) sind genau %2 Bild(er) lang</translation>
    </message>
    <message>
        <source>Recordings differ in length by %1 frame(s)</source>
        <translation>Die Aufnahmen unterscheiden sich in der Länge um %1 Bild(er)</translation>
    </message>
    <message>
        <source>%1. GPS devices stay locked by frame index, so the show falls apart as soon as the shortest file ends. Playback here stops at frame %2.</source>
        <translation>%1. GPS-Geräte bleiben über den Bildindex gekoppelt, daher zerfällt die Show, sobald die kürzeste Datei endet. Die Wiedergabe hier stoppt bei Bild %2.</translation>
    </message>
    <message>
        <source>%1: header says %2, file holds %3</source>
        <translation>%1: Header gibt %2 an, Datei enthält %3</translation>
    </message>
    <message>
        <source>Frame count in the header matches the packets on disk</source>
        <translation>Die Bildanzahl im Header stimmt mit den Paketen auf dem Datenträger überein</translation>
    </message>
    <message>
        <source>Frame count in the header is out of date</source>
        <translation>Die Bildanzahl im Header ist veraltet</translation>
    </message>
    <message>
        <source>%1. MOX writes this number when the recording is stopped; a zero or stale value means the recording was never closed properly.</source>
        <translation>%1. MOX schreibt diese Zahl beim Stoppen der Aufnahme; ein Wert von null oder ein veralteter Wert bedeutet, dass die Aufnahme nie ordnungsgemäß abgeschlossen wurde.</translation>
    </message>
    <message>
        <source>Timestamps are in lockstep across all %1 file(s), over all %2 frame(s)</source>
        <translation>Die Zeitstempel sind über alle %1 Datei(en) und alle %2 Bild(er) synchron</translation>
    </message>
    <message>
        <source>Timestamps vary by up to %1 s inside a single frame</source>
        <translation>Die Zeitstempel schwanken innerhalb eines einzelnen Bilds um bis zu %1 s</translation>
    </message>
    <message>
        <source>Worst in group %1. All records of one frame are written in the same pass and should carry one value.</source>
        <translation>Am stärksten in Gruppe %1. Alle Datensätze eines Bilds werden im selben Durchgang geschrieben und sollten denselben Wert tragen.</translation>
    </message>
    <message>
        <source>Timestamps drift by up to %1 s between files</source>
        <translation>Die Zeitstempel driften zwischen den Dateien um bis zu %1 s</translation>
    </message>
    <message>
        <source>First seen at frame %1. MOX stamps every group with the same value in a given frame, so a difference means these files are not from one recording session.</source>
        <translation>Zuerst bei Bild %1 aufgetreten. MOX versieht in einem Bild jede Gruppe mit demselben Wert; eine Abweichung bedeutet also, dass diese Dateien nicht aus einer Aufnahmesession stammen.</translation>
    </message>
    <message>
        <source>The set carries %1 universe(s); the patch has %2</source>
        <translation>Das Set enthält %1 Universum/Universen; der Patch hat %2</translation>
    </message>
    <message>
        <source>Pixels with no record behind them stay dark for the whole run.</source>
        <translation>Pixel ohne zugehörigen Datensatz bleiben während des gesamten Durchlaufs dunkel.</translation>
    </message>
    <message>
        <source>The set covers all %1 torvoverse(s) in the patch</source>
        <translation>Das Set deckt alle %1 Torvoverse(s) im Patch ab</translation>
    </message>
    <message>
        <source>Two or more groups share a universe</source>
        <translation>Zwei oder mehr Gruppen teilen sich ein Universum</translation>
    </message>
    <message>
        <source>Universe(s) %1. Two files write the same pixels and the last one drawn wins.</source>
        <translation>Universum/Universen %1. Zwei Dateien schreiben dieselben Pixel, und die zuletzt gezeichnete gewinnt.</translation>
    </message>
    <message>
        <source>No patch loaded</source>
        <translation>Kein Patch geladen</translation>
    </message>
    <message>
        <source>A GPS-Sync set is defined by the patch: one recording per group. Load a .tpatch first.</source>
        <translation>Ein GPS-Sync-Set wird durch den Patch festgelegt: eine Aufnahme pro Gruppe. Laden Sie zuerst eine .tpatch-Datei.</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>Kein Patch geladen.</translation>
    </message>
    <message>
        <source>%1 of %2 group(s) have no recording</source>
        <translation>%1 von %2 Gruppe(n) haben keine Aufnahme</translation>
    </message>
    <message>
        <source>A GPS-Sync show is only complete when every group has its own file. Missing: %1</source>
        <translation>Eine GPS-Sync-Show ist erst vollständig, wenn jede Gruppe ihre eigene Datei hat. Es fehlen: %1</translation>
    </message>
    <message>
        <source>%1 recording(s) still missing.</source>
        <translation>%1 Aufnahme(n) fehlen noch.</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 group(s), %1 recording(s) supplied</source>
        <translation>%1 Gruppe(n), %1 Aufnahme(n) angegeben</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The same file is assigned to more than one group</source>
        <translation>Dieselbe Datei ist mehr als einer Gruppe zugewiesen</translation>
    </message>
    <message>
        <source>%1. Each group has its own recording; reusing one file makes two groups play the same animation.</source>
        <translation>%1. Jede Gruppe hat ihre eigene Aufnahme; wird eine Datei mehrfach verwendet, spielen zwei Gruppen dieselbe Animation.</translation>
    </message>
    <message>
        <source>%1: file cannot be read</source>
        <translation>%1: Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 of %2 file(s) could not be read.</source>
        <translation>%1 von %2 Datei(en) konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The set holds no complete frame.</source>
        <translation>Das Set enthält kein vollständiges Bild.</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - %3 failure(s), %4 warning(s); playback is enabled so you can see them</source>
        <translation>%1 Gruppe(n) - %2 Bilder - %3 Fehler, %4 Warnung(en); die Wiedergabe ist aktiviert, damit Sie sie sehen können</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - structure and sync verified</source>
        <translation>%1 Gruppe(n) - %2 Bilder - Struktur und Sync geprüft</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no usable DMX records.</source>
        <translation>&quot;%1&quot; enthält keine verwendbaren DMX-Datensätze.</translation>
    </message>
    <message>
        <source>Stopped parsing at byte %1 of %2 - the file is truncated or contains a record this reader does not understand. %3 record(s) were usable.</source>
        <translation>Einlesen bei Byte %1 von %2 abgebrochen - die Datei ist abgeschnitten oder enthält einen Datensatz, den dieser Leser nicht versteht. %3 Datensatz/-sätze waren verwendbar.</translation>
    </message>
    <message>
        <source>This recording does not match the loaded patch: the patch expects %1 record(s) per frame in a fixed order, but the file repeats every %2. Playback will follow the file and map records by universe number, which cannot separate devices that share a universe.</source>
        <translation>Diese Aufnahme passt nicht zum geladenen Patch: Der Patch erwartet %1 Datensatz/-sätze pro Bild in fester Reihenfolge, die Datei wiederholt sich aber alle %2. Die Wiedergabe folgt der Datei und ordnet Datensätze über die Universumsnummer zu; Geräte, die sich ein Universum teilen, lassen sich so nicht trennen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too small to contain a single record.</source>
        <translation>&quot;%1&quot; ist zu klein, um auch nur einen Datensatz zu enthalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not start with an Art-Net or KEL DMX record. It is not a Torvane recording, or it is damaged.</source>
        <translation>&quot;%1&quot; beginnt nicht mit einem Art-Net- oder KEL-DMX-Datensatz. Die Datei ist keine Torvane-Aufnahme oder beschädigt.</translation>
    </message>
    <message>
        <source>GPS-Sync recording: this file holds one group&apos;s universes only. Records are mapped by universe number, so pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.</source>
        <translation>GPS-Sync-Aufnahme: Diese Datei enthält nur die Universen einer Gruppe. Datensätze werden über die Universumsnummer zugeordnet, daher bleiben Pixel außerhalb dieser Gruppe dunkel. Verwenden Sie den Tab „GPS Mirra“, um ein vollständiges Set von Gruppendateien gemeinsam abzuspielen.</translation>
    </message>
    <message>
        <source>%1 trailing record(s) do not form a complete frame and are ignored.</source>
        <translation>%1 Datensatz/-sätze am Ende ergeben kein vollständiges Bild und werden ignoriert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not contain a complete frame.</source>
        <translation>&quot;%1&quot; enthält kein vollständiges Bild.</translation>
    </message>
    <message>
        <source>Art-Net</source>
        <translation>Art-Net</translation>
    </message>
    <message>
        <source>KEL (%1)</source>
        <translation>KEL (%1)</translation>
    </message>
    <message>
        <source>KEL</source>
        <translation>KEL</translation>
    </message>
    <message>
        <source> GPS-Sync</source>
        <translation> GPS-Sync</translation>
    </message>
</context>
<context>
    <name>UniverseHealthModel</name>
    <message>
        <source>Universe / sender</source>
        <translation>Universum / Quelle</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>Falsche Reihenfolge</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Sync missed</source>
        <translation>Sync verpasst</translation>
    </message>
    <message>
        <source>Length changes</source>
        <translation>Längenänderungen</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Zuletzt empfangen</translation>
    </message>
    <message>
        <source>Intervals min / median / max (ms)</source>
        <translation>Intervalle min / Median / max (ms)</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>vor %1 s</translation>
    </message>
    <message>
        <source>the recording</source>
        <translation>die Aufnahme</translation>
    </message>
</context>
<context>
    <name>UniverseHealthWindow</name>
    <message numerus="yes">
        <source>ArtSync: %1 per second, %n packet(s)</source>
        <translation>
            <numerusform>ArtSync: %1 pro Sekunde, %n Paket</numerusform>
            <numerusform>ArtSync: %1 pro Sekunde, %n Pakete</numerusform>
        </translation>
    </message>
    <message>
        <source>No ArtSync seen.</source>
        <translation>Kein ArtSync empfangen.</translation>
    </message>
    <message>
        <source>No universe yet: nothing received and no patch loaded.</source>
        <translation>Noch kein Universum: nichts empfangen und kein Patch geladen.</translation>
    </message>
    <message numerus="yes">
        <source>%n universe(s): %1</source>
        <translation>
            <numerusform>%n Universum: %1</numerusform>
            <numerusform>%n Universen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Universe Health</source>
        <translation>Universum-Zustand</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Start every counter again from zero.</source>
        <translation>Alle Zähler auf null zurücksetzen.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>CSV exportieren...</translation>
    </message>
    <message>
        <source>Export the health table as CSV</source>
        <translation>Die Zustandstabelle als CSV exportieren</translation>
    </message>
    <message>
        <source>Universe health</source>
        <translation>Universum-Zustand</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a count, then a state</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>UniverseTableModel</name>
    <message>
        <source>port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>net/sub/uni</source>
        <translation>Net/Sub/Uni</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>target IP</source>
        <translation>Ziel-IP</translation>
    </message>
</context>
<context>
    <name>UpdateController</name>
    <message>
        <source>Software Update</source>
        <translation>Software-Update</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Automatisch nach Updates suchen (einmal täglich)</translation>
    </message>
    <message>
        <source>Could not check for updates: %1</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is the latest version.</source>
        <translation>Torvane TALU %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is available. You have %2.</source>
        <translation>Torvane TALU %1 ist verfügbar. Installiert ist %2.</translation>
    </message>
    <message>
        <source>Download...</source>
        <translation>Herunterladen...</translation>
    </message>
    <message>
        <source>Ignore This Version</source>
        <translation>Diese Version ignorieren</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>Die Update-Information ist zu groß.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>Die Update-Information ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The update information names no valid version.</source>
        <translation>Die Update-Information nennt keine gültige Version.</translation>
    </message>
    <message>
        <source>The update information has no valid download page.</source>
        <translation>Die Update-Information enthält keine gültige Download-Seite.</translation>
    </message>
</context>
</TS>
