<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>ArtNetNode</name>
    <message>
        <source>No socket could be created.</source>
        <translation>Impossible de créer le socket.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses can be used.</source>
        <translation>Seules les adresses IPv4 sont utilisables.</translation>
    </message>
</context>
<context>
    <name>BroadcastPanel</name>
    <message>
        <source>Torvane Tester</source>
        <translation>Testeur Torvane</translation>
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
        <translation>Nœud générique</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>Pas d&apos;écoute en cours.</translation>
    </message>
    <message>
        <source>Not recording.</source>
        <translation>Pas d&apos;enregistrement en cours.</translation>
    </message>
    <message>
        <source>Listen on</source>
        <translation>Écouter sur</translation>
    </message>
    <message>
        <source>The local address this node listens on.

Running alongside Torvane MOX on the same machine? Pick a specific address, not Any: MOX binds to Any, and Windows delivers a unicast packet to the more specific socket.</source>
        <translation>L&apos;adresse locale sur laquelle ce nœud écoute.

Vous utilisez Torvane MOX sur la même machine ? Choisissez une adresse précise, pas Toutes : MOX se lie à Toutes (Any), et Windows remet un paquet unicast au socket le plus spécifique.</translation>
    </message>
    <message>
        <source>Any (0.0.0.0)</source>
        <translation>Toutes (0.0.0.0)</translation>
    </message>
    <message>
        <source>%1 (loopback)</source>
        <translation>%1 (boucle locale)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>List the network interfaces again</source>
        <translation>Actualiser la liste des interfaces réseau</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Art-Net uses 6454. Change only if you know why.</source>
        <translation>Art-Net utilise le port 6454. Ne le changez que si vous savez pourquoi.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Preset identities. Pick one, then edit the fields below.</source>
        <translation>Identités prédéfinies. Choisissez-en une, puis modifiez les champs ci-dessous.</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Nom court</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Nom long</translation>
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
        <translation>Arrêter l&apos;écoute</translation>
    </message>
    <message>
        <source>Start listening</source>
        <translation>Démarrer l&apos;écoute</translation>
    </message>
    <message>
        <source>Record incoming stream</source>
        <translation>Enregistrer le flux entrant</translation>
    </message>
    <message>
        <source>Write every incoming Art-Net DMX packet to a .tpx file,
byte compatible with Torvane MOX recordings.

An existing file is appended to, not overwritten - that is how several animations end up in one file.</source>
        <translation>Écrit chaque paquet Art-Net DMX entrant dans un fichier .tpx,
compatible octet pour octet avec les enregistrements Torvane MOX.

Un fichier existant est complété, pas écrasé : c&apos;est ainsi que plusieurs animations se retrouvent dans un même fichier.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose where the recording is written</source>
        <translation>Choisir où écrire l&apos;enregistrement</translation>
    </message>
    <message>
        <source>File name (.tpx is added)</source>
        <translation>Nom de fichier (.tpx ajouté)</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>The frame rate of the source that is sending to us.
It only scales the 2-byte timestamp written into each record - the DMX data itself is stored exactly as received.</source>
        <translation>La cadence de la source qui nous envoie les données.
Elle ne sert qu&apos;à mettre à l&apos;échelle l&apos;horodatage de 2 octets écrit dans chaque entrée ; les données DMX elles-mêmes sont stockées exactement telles que reçues.</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Arrêter l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>No patch loaded - recording works, but the monitor stays dark.</source>
        <translation>Aucun patch chargé : l&apos;enregistrement fonctionne, mais le moniteur reste noir.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (absente)</translation>
    </message>
    <message>
        <source>Select Recording Folder</source>
        <translation>Choisir le dossier d&apos;enregistrement</translation>
    </message>
    <message>
        <source>No ArtPoll seen yet - no controller is looking for nodes.</source>
        <translation>Aucun ArtPoll reçu pour l&apos;instant : aucun contrôleur ne recherche de nœuds.</translation>
    </message>
    <message>
        <source>Answering ArtPoll (%1 replies sent).</source>
        <translation>Réponse aux ArtPoll (%1 réponses envoyées).</translation>
    </message>
    <message>
        <source>Last ArtPoll %1 s ago - the controller may have stopped.</source>
        <translation>Dernier ArtPoll il y a %1 s : le contrôleur s&apos;est peut-être arrêté.</translation>
    </message>
    <message>
        <source>%1 pkt/s</source>
        <translation>%1 paq./s</translation>
    </message>
    <message>
        <source>%1 packets</source>
        <translation>%1 paquets</translation>
    </message>
    <message>
        <source>no DMX yet</source>
        <translation>pas encore de DMX</translation>
    </message>
    <message>
        <source>last %1 ms ago</source>
        <translation>dernier il y a %1 ms</translation>
    </message>
    <message>
        <source>%1 seq errors</source>
        <translation>%1 erreurs de séq.</translation>
    </message>
    <message>
        <source>%1 ignored</source>
        <translation>%1 ignorés</translation>
    </message>
</context>
<context>
    <name>DmxChannelGrid</name>
    <message>
        <source>no data</source>
        <translation>aucune donnée</translation>
    </message>
</context>
<context>
    <name>DmxInspector</name>
    <message>
        <source>Decimal</source>
        <translation>Décimal</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hexa</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>The universe shown, by Port-Address.</source>
        <translation>L&apos;univers affiché, par Port-Address.</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Univers</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>Canal %1 : %2</translation>
    </message>
    <message>
        <source> · not patched</source>
        <translation> · non patché</translation>
    </message>
    <message>
        <source>kinetic</source>
        <translation>cinétique</translation>
    </message>
    <message>
        <source>… (%1 in all)</source>
        <translation>… (%1 au total)</translation>
    </message>
    <message>
        <source> · %1 of pixel(s) %2</source>
        <translation> · %1 de pixel(s) %2</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Display filter, e.g. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</source>
        <translation>Filtre d&apos;affichage, p. ex. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</translation>
    </message>
    <message>
        <source>Type a display filter and press Enter. Green: the filter is valid; red: it is not, and the message below says why.</source>
        <translation>Saisissez un filtre d&apos;affichage et appuyez sur Entrée. Vert : le filtre est valide ; rouge : il ne l&apos;est pas, et le message ci-dessous en donne la raison.</translation>
    </message>
    <message>
        <source>Display filter</source>
        <translation>Filtre d&apos;affichage</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>GpsGroupRow</name>
    <message>
        <source>expects %1 universe(s)</source>
        <translation>attend %1 univers</translation>
    </message>
    <message>
        <source>no drawable pixels</source>
        <translation>aucun pixel affichable</translation>
    </message>
    <message>
        <source>Recording for &quot;%1&quot;</source>
        <translation>Enregistrement pour « %1 »</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for the recording of &quot;%1&quot;</source>
        <translation>Choisir l&apos;enregistrement de « %1 »</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>non vérifié</translation>
    </message>
    <message>
        <source>%1 - %2 frames - %3 universe(s)/frame - %4 B/frame</source>
        <translation>%1 - %2 images - %3 univers/image - %4 o/image</translation>
    </message>
    <message>
        <source> (patch expects %1)</source>
        <translation> (le patch en attend %1)</translation>
    </message>
    <message>
        <source>file differs from the patch</source>
        <translation>le fichier diffère du patch</translation>
    </message>
    <message>
        <source>file usable</source>
        <translation>fichier utilisable</translation>
    </message>
    <message>
        <source>file unusable</source>
        <translation>fichier inutilisable</translation>
    </message>
    <message>
        <source>Recording for group</source>
        <translation>Enregistrement du groupe</translation>
    </message>
    <message>
        <source>Torvane Recording (*.tpx);;All Files (*)</source>
        <translation>Enregistrement Torvane (*.tpx);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>GpsPlaybackPanel</name>
    <message>
        <source>One recording per group, all driven from one clock.</source>
        <translation>Un enregistrement par groupe, tous pilotés par une seule horloge.</translation>
    </message>
    <message>
        <source>MOX writes a GPS-Sync recording as one file per group, named &lt;name&gt;_&lt;Group&gt;.tpx.
In the field each device plays its own group&apos;s file while the GPS pulse keeps them all on the same frame index.
This tab does the same: one clock drives frame n of every file at the same instant.</source>
        <translation>MOX écrit un enregistrement GPS-Sync sous forme d&apos;un fichier par groupe, nommé &lt;nom&gt;_&lt;Groupe&gt;.tpx.
Sur site, chaque appareil lit le fichier de son groupe tandis que l&apos;impulsion GPS les maintient tous sur le même index d&apos;image.
Cet onglet fait de même : une horloge pilote l&apos;image n de chaque fichier au même instant.</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Chargez d&apos;abord un patch : la liste des groupes en provient.</translation>
    </message>
    <message>
        <source>Auto-fill from folder...</source>
        <translation>Remplir depuis un dossier...</translation>
    </message>
    <message>
        <source>Pick the folder the recording was saved into.

MOX names GPS-Sync files &lt;name&gt;_&lt;Group&gt;.tpx, so every group can be matched by name. When a folder holds several sessions, the one that covers the most groups is chosen.</source>
        <translation>Choisissez le dossier dans lequel l&apos;enregistrement a été sauvegardé.

MOX nomme les fichiers GPS-Sync &lt;nom&gt;_&lt;Groupe&gt;.tpx, chaque groupe peut donc être associé par son nom. Si un dossier contient plusieurs sessions, celle qui couvre le plus de groupes est retenue.</translation>
    </message>
    <message>
        <source>Load set</source>
        <translation>Charger le jeu</translation>
    </message>
    <message>
        <source>Open every file, verify structure and sync, then arm playback.</source>
        <translation>Ouvre chaque fichier, vérifie la structure et la synchro, puis arme la lecture.</translation>
    </message>
    <message>
        <source>Structure &amp; sync report</source>
        <translation>Rapport structure &amp; synchro</translation>
    </message>
    <message>
        <source>Stop and return every file to its first frame</source>
        <translation>Arrêter et ramener chaque fichier à sa première image</translation>
    </message>
    <message>
        <source>All files are presented at exactly this rate.
The timestamp stored in the files is used to verify sync, not to pace playback.</source>
        <translation>Tous les fichiers sont lus exactement à cette cadence.
L&apos;horodatage stocké dans les fichiers sert à vérifier la synchro, pas à cadencer la lecture.</translation>
    </message>
    <message>
        <source>Loop the whole set (1 -&gt; end -&gt; 1)</source>
        <translation>Lire tout le jeu en boucle (1 -&gt; fin -&gt; 1)</translation>
    </message>
    <message>
        <source>Play the set end to end, over and over.
Every file wraps on the same frame, so a set that drifts shows it within a few passes.</source>
        <translation>Lit le jeu du début à la fin, encore et encore.
Chaque fichier reboucle sur la même image : un jeu qui dérive se trahit en quelques passages.</translation>
    </message>
    <message>
        <source>Set loaded: %1 recording(s), %2 frames each.</source>
        <translation>Jeu chargé : %1 enregistrement(s), %2 images chacun.</translation>
    </message>
    <message>
        <source>No set loaded.</source>
        <translation>Aucun jeu chargé.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Image %1 / %2</translation>
    </message>
    <message>
        <source>%1 file(s) driven together</source>
        <translation>%1 fichier(s) pilotés ensemble</translation>
    </message>
    <message>
        <source>timestamps in step</source>
        <translation>horodatages synchrones</translation>
    </message>
    <message>
        <source>timestamps %1 s apart</source>
        <translation>horodatages décalés de %1 s</translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation>Dossier contenant les enregistrements GPS-Sync</translation>
    </message>
</context>
<context>
    <name>GroupFilterPanel</name>
    <message>
        <source>Groups &amp; Universes</source>
        <translation>Groupes &amp; univers</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Port addr.</source>
        <translation>Port-Address</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Tout masquer</translation>
    </message>
    <message>
        <source>Z Layer</source>
        <translation>Couche Z</translation>
    </message>
    <message>
        <source>Z </source>
        <translation>Z </translation>
    </message>
    <message>
        <source>Only pixels on this Z layer are drawn.</source>
        <translation>Seuls les pixels de cette couche Z sont affichés.</translation>
    </message>
    <message>
        <source>All Z</source>
        <translation>Tout Z</translation>
    </message>
    <message>
        <source>Draw every Z layer at once. Layers overlap in 2D, so this is a quick look rather than an inspection view.</source>
        <translation>Affiche toutes les couches Z à la fois. Les couches se superposent en 2D : c&apos;est un aperçu rapide, pas une vue d&apos;inspection.</translation>
    </message>
    <message>
        <source>Universe %1</source>
        <translation>Univers %1</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>Net %1 / SubNet %2 / Universe %3
Target IP %4
Select to highlight this universe on the monitor.</source>
        <translation>Net %1 / SubNet %2 / Universe %3
IP cible %4
Sélectionnez pour mettre en évidence cet univers sur le moniteur.</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Single layer (Z %1).</source>
        <translation>Couche unique (Z %1).</translation>
    </message>
    <message>
        <source>Layers %1 - %2. Only the selected layer is drawn.</source>
        <translation>Couches %1 - %2. Seule la couche sélectionnée est affichée.</translation>
    </message>
</context>
<context>
    <name>Health</name>
    <message>
        <source>ArtDmx packets received for this universe.</source>
        <translation>Paquets ArtDmx reçus pour cet univers.</translation>
    </message>
    <message>
        <source>Packets per second: over the last second live, over the whole file otherwise.</source>
        <translation>Paquets par seconde : sur la dernière seconde en direct, sur l&apos;ensemble du fichier sinon.</translation>
    </message>
    <message>
        <source>Sequence numbers skipped by forward jumps (shorter than half the 1-255 cycle, across the wrap from 255 to 1), less those that arrived late: a swapped pair loses nothing.</source>
        <translation>Numéros de séquence sautés par des bonds en avant (plus courts que la moitié du cycle 1-255, y compris au passage de 255 à 1), moins ceux arrivés en retard : une paire inversée ne perd rien.</translation>
    </message>
    <message>
        <source>Packets that arrived behind the highest sequence number seen so far (a backward step shorter than half the cycle).</source>
        <translation>Paquets arrivés en deçà du plus grand numéro de séquence vu jusqu&apos;ici (un recul plus court que la moitié du cycle).</translation>
    </message>
    <message>
        <source>Packets repeating the highest sequence number seen so far.</source>
        <translation>Paquets répétant le plus grand numéro de séquence vu jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Times the data length changed from one packet to the next.</source>
        <translation>Nombre de fois où la longueur des données a changé d&apos;un paquet au suivant.</translation>
    </message>
    <message>
        <source>Milliseconds since the last packet.</source>
        <translation>Millisecondes depuis le dernier paquet.</translation>
    </message>
    <message>
        <source>The shortest, median and longest time between two packets, in ms (the median of the latest 64).</source>
        <translation>Le temps le plus court, médian et le plus long entre deux paquets, en ms (la médiane des 64 derniers).</translation>
    </message>
    <message>
        <source>ArtSync periods in which the universe came twice or not at all (a torn frame).</source>
        <translation>Périodes ArtSync pendant lesquelles l&apos;univers est arrivé deux fois ou pas du tout (une image déchirée).</translation>
    </message>
    <message>
        <source>never: patched, nothing received; stale: nothing for more than 4 s; conflict: two or more senders; unstable: over 1 % of packets lost, out of order or repeated, or a longest interval over 4 times the median and over 100 ms; ok: none of these.</source>
        <translation>jamais : patché, rien reçu ; périmé : rien depuis plus de 4 s ; conflit : deux sources ou plus ; instable : plus de 1 % des paquets perdus, hors séquence ou répétés, ou un intervalle le plus long supérieur à 4 fois la médiane et à 100 ms ; ok : aucun de ces cas.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>Impossible d&apos;ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>périmé</translation>
    </message>
    <message>
        <source>conflict</source>
        <translation>conflit</translation>
    </message>
    <message>
        <source>unstable</source>
        <translation>instable</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>never received</source>
        <translation>jamais reçu</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n sender(s) · %2 fps · lost %3 · out of order %4 · duplicates %5 · last %6 s ago</source>
        <translation>
            <numerusform>%1 · %n source · %2 fps · perdus %3 · hors séquence %4 · doublons %5 · dernier il y a %6 s</numerusform>
            <numerusform>%1 · %n sources · %2 fps · perdus %3 · hors séquence %4 · doublons %5 · dernier il y a %6 s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin.</source>
        <translation>Prêt. Chargez un patch (.tpatch, MADRIX .mpz ou ELM .elm) pour commencer.</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot</source>
        <translation>Enregistrer une capture du moniteur</translation>
    </message>
    <message>
        <source>PNG Image (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>Snapshot Failed</source>
        <translation>Échec de la capture</translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation>Impossible d&apos;écrire %1.</translation>
    </message>
    <message>
        <source>Snapshot saved to %1</source>
        <translation>Capture enregistrée dans %1</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Recorded playback</source>
        <translation>Lecture d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Play a .tpx recording. A patch is optional: without one the monitor stays dark and the DMX tab shows the data.</source>
        <translation>Lit un enregistrement .tpx. Le patch est facultatif : sans patch, le moniteur reste noir et l&apos;onglet DMX affiche les données.</translation>
    </message>
    <message>
        <source>Live broadcast</source>
        <translation>Diffusion en direct</translation>
    </message>
    <message>
        <source>Act as an Art-Net node and paint the monitor from live DMX.</source>
        <translation>Agit comme un nœud Art-Net et affiche sur le moniteur le DMX reçu en direct.</translation>
    </message>
    <message>
        <source>Standard Art-Net</source>
        <translation>Art-Net standard</translation>
    </message>
    <message>
        <source>One .tpx file recorded for the whole patch.</source>
        <translation>Un seul fichier .tpx enregistré pour tout le patch.</translation>
    </message>
    <message>
        <source>GPS Mirra</source>
        <translation>GPS Mirra</translation>
    </message>
    <message>
        <source>One .tpx file per group, recorded with GPS Sync Compatible Record.
All of them are driven from a single clock, frame n at the same instant.</source>
        <translation>Un fichier .tpx par groupe, enregistré avec GPS Sync Compatible Record.
Tous sont pilotés par une seule horloge, l&apos;image n au même instant.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
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
        <translation>Ajuster à la vue</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Save the current monitor image as a PNG file</source>
        <translation>Enregistrer l&apos;image actuelle du moniteur en fichier PNG</translation>
    </message>
    <message>
        <source>White channels</source>
        <translation>Canaux blancs</translation>
    </message>
    <message>
        <source>Add W / CW / WW channel values to the pixel colour.

Off by default: MOX derives the white channels FROM rgb, so there is no single correct way back. This is a visibility aid - without it, white-only fixtures stay black even while they are receiving data.</source>
        <translation>Ajoute les valeurs des canaux W / CW / WW à la couleur du pixel.

Désactivé par défaut : MOX calcule les canaux blancs À PARTIR du RGB, il n&apos;existe donc pas de retour unique et exact. C&apos;est une aide visuelle : sans elle, les projecteurs uniquement blancs restent noirs même lorsqu&apos;ils reçoivent des données.</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Axes</translation>
    </message>
    <message>
        <source>Show the red / green / blue X-Y-Z arrows at the origin.</source>
        <translation>Affiche les flèches X-Y-Z rouge / vert / bleu à l&apos;origine.</translation>
    </message>
    <message>
        <source>Fast draw</source>
        <translation>Tracé rapide</translation>
    </message>
    <message>
        <source>Draw LEDs as squares without antialiasing.

Roughly 5x faster on large patches - use it when the 3D view cannot keep up with playback. Pixels look square instead of round.</source>
        <translation>Dessine les LED en carrés, sans anticrénelage.

Environ 5x plus rapide sur les grands patchs : à utiliser quand la vue 3D ne suit pas la lecture. Les pixels apparaissent carrés au lieu de ronds.</translation>
    </message>
    <message>
        <source>Auto orbit</source>
        <translation>Orbite auto</translation>
    </message>
    <message>
        <source>Swing the model through +-45 degrees on two axes.
Touching the view with the mouse stops it.</source>
        <translation>Fait pivoter le modèle de +-45 degrés sur deux axes.
Toucher la vue avec la souris l&apos;arrête.</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Face</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Back to the default angle and distance</source>
        <translation>Revenir à l&apos;angle et à la distance par défaut</translation>
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
        <translation>Dossier contenant les enregistrements GPS-Sync</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Chargez d&apos;abord un patch : la liste des groupes en provient.</translation>
    </message>
    <message>
        <source>No file in &quot;%1&quot; matches a group name. GPS-Sync recordings are named &lt;name&gt;_&lt;Group&gt;.tpx.</source>
        <translation>Aucun fichier de « %1 » ne correspond à un nom de groupe. Les enregistrements GPS-Sync sont nommés &lt;nom&gt;_&lt;Groupe&gt;.tpx.</translation>
    </message>
    <message>
        <source>Matched all %1 group(s). Press Load set to verify them.</source>
        <translation>Les %1 groupe(s) ont tous été associés. Cliquez sur Charger le jeu pour les vérifier.</translation>
    </message>
    <message>
        <source>Matched %1 of %2 group(s). Fill the rest by hand, then press Load set.</source>
        <translation>%1 groupe(s) sur %2 associé(s). Complétez le reste à la main, puis cliquez sur Charger le jeu.</translation>
    </message>
    <message>
        <source>The file list changed - press Load set to verify it again.</source>
        <translation>La liste des fichiers a changé : cliquez sur Charger le jeu pour la vérifier à nouveau.</translation>
    </message>
    <message>
        <source>Load a patch first - a GPS-Sync set is one recording per group, and the group list comes from the patch.</source>
        <translation>Chargez d&apos;abord un patch : un jeu GPS-Sync comporte un enregistrement par groupe, et la liste des groupes provient du patch.</translation>
    </message>
    <message>
        <source>GPS Mirra set: %1 recording(s), %2 frames each.</source>
        <translation>Jeu GPS Mirra : %1 enregistrement(s), %2 images chacun.</translation>
    </message>
    <message>
        <source>Could not listen on %1:%2 - %3</source>
        <translation>Impossible d&apos;écouter sur %1:%2 : %3</translation>
    </message>
    <message>
        <source>Art-Net node active on %1.</source>
        <translation>Nœud Art-Net actif sur %1.</translation>
    </message>
    <message>
        <source>Listening on %1:%2, advertising %3 universe(s).</source>
        <translation>Écoute sur %1:%2, %3 univers annoncé(s).</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>Pas d&apos;écoute en cours.</translation>
    </message>
    <message>
        <source>Start listening first - there is no node to announce.</source>
        <translation>Démarrez d&apos;abord l&apos;écoute : il n&apos;y a aucun nœud à annoncer.</translation>
    </message>
    <message>
        <source>ArtPollReply broadcast.</source>
        <translation>ArtPollReply diffusé.</translation>
    </message>
    <message>
        <source>Stop listening first - the address cannot change while the node is running.</source>
        <translation>Arrêtez d&apos;abord l&apos;écoute : l&apos;adresse ne peut pas changer pendant que le nœud fonctionne.</translation>
    </message>
    <message>
        <source>Network interfaces refreshed.</source>
        <translation>Interfaces réseau actualisées.</translation>
    </message>
    <message>
        <source>Start listening first - there is nothing to record yet.</source>
        <translation>Démarrez d&apos;abord l&apos;écoute : il n&apos;y a encore rien à enregistrer.</translation>
    </message>
    <message>
        <source>Pick a folder and a file name first.</source>
        <translation>Choisissez d&apos;abord un dossier et un nom de fichier.</translation>
    </message>
    <message>
        <source>Could not write %1 - %2</source>
        <translation>Impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>Appending to %1 (%2 KB already in the file).</source>
        <translation>Ajout à la suite de %1 (%2 KB déjà dans le fichier).</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Enregistrement dans %1</translation>
    </message>
    <message>
        <source>Saved %1 frame(s), %2 record(s), %3 KB to %4</source>
        <translation>%1 image(s), %2 entrée(s), %3 KB enregistrés dans %4</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <translation>Enregistrement arrêté : %1</translation>
    </message>
    <message>
        <source>Planned for a future version.</source>
        <translation>Prévu pour une version future.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open Patch...</source>
        <translation>Ouvrir un patch...</translation>
    </message>
    <message>
        <source>Open Recording...</source>
        <translation>Ouvrir un enregistrement...</translation>
    </message>
    <message>
        <source>Open GPS-Sync Set Folder...</source>
        <translation>Ouvrir le dossier d&apos;un jeu GPS-Sync...</translation>
    </message>
    <message>
        <source>Match every group of the loaded patch with its &lt;name&gt;_&lt;Group&gt;.tpx file in a folder.</source>
        <translation>Associe chaque groupe du patch chargé à son fichier &lt;nom&gt;_&lt;Groupe&gt;.tpx dans un dossier.</translation>
    </message>
    <message>
        <source>Recent Patches</source>
        <translation>Patchs récents</translation>
    </message>
    <message>
        <source>Recent Recordings</source>
        <translation>Enregistrements récents</translation>
    </message>
    <message>
        <source>Open Network Log...</source>
        <translation>Ouvrir un journal réseau...</translation>
    </message>
    <message>
        <source>Save Network Log</source>
        <translation>Enregistrer le journal réseau</translation>
    </message>
    <message>
        <source>Save Network Log As...</source>
        <translation>Enregistrer le journal réseau sous...</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot...</source>
        <translation>Enregistrer une capture du moniteur...</translation>
    </message>
    <message>
        <source>Export Patch Report...</source>
        <translation>Exporter le rapport du patch...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Network Log...</source>
        <translation>Journal réseau...</translation>
    </message>
    <message>
        <source>Copy Monitor Image</source>
        <translation>Copier l&apos;image du moniteur</translation>
    </message>
    <message>
        <source>Interface Theme...</source>
        <translation>Thème de l&apos;interface...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>2D Monitor</source>
        <translation>Moniteur 2D</translation>
    </message>
    <message>
        <source>3D Monitor</source>
        <translation>Moniteur 3D</translation>
    </message>
    <message>
        <source>Fit to View</source>
        <translation>Ajuster à la vue</translation>
    </message>
    <message>
        <source>3D Camera</source>
        <translation>Caméra 3D</translation>
    </message>
    <message>
        <source>Reset Camera</source>
        <translation>Réinitialiser la caméra</translation>
    </message>
    <message>
        <source>Show Axes</source>
        <translation>Afficher les axes</translation>
    </message>
    <message>
        <source>Fast Draw</source>
        <translation>Tracé rapide</translation>
    </message>
    <message>
        <source>Auto Orbit</source>
        <translation>Orbite auto</translation>
    </message>
    <message>
        <source>White Channels</source>
        <translation>Canaux blancs</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Lecture / Pause</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rembobiner</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Go to Frame...</source>
        <translation>Aller à l&apos;image...</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>GPS Mirra Set</source>
        <translation>Jeu GPS Mirra</translation>
    </message>
    <message>
        <source>&amp;Broadcast</source>
        <translation>Diffu&amp;sion</translation>
    </message>
    <message>
        <source>Listen for Art-Net</source>
        <translation>Écouter l&apos;Art-Net</translation>
    </message>
    <message>
        <source>Record Incoming Stream</source>
        <translation>Enregistrer le flux entrant</translation>
    </message>
    <message>
        <source>Announce Node Now</source>
        <translation>Annoncer le nœud maintenant</translation>
    </message>
    <message>
        <source>Broadcast an ArtPollReply immediately instead of waiting for the next poll.</source>
        <translation>Diffuse immédiatement un ArtPollReply au lieu d&apos;attendre le prochain ArtPoll.</translation>
    </message>
    <message>
        <source>Refresh Network Interfaces</source>
        <translation>Actualiser les interfaces réseau</translation>
    </message>
    <message>
        <source>Node Discovery (ArtPoll Scan)...</source>
        <translation>Découverte des nœuds (scan ArtPoll)...</translation>
    </message>
    <message>
        <source>Test Signal Generator...</source>
        <translation>Générateur de signal de test...</translation>
    </message>
    <message>
        <source>sACN (E1.31) Input</source>
        <translation>Entrée sACN (E1.31)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Language...</source>
        <translation>Langue...</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Open Logs Folder</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Patches that produced import warnings are kept here together with the messages.</source>
        <translation>Les patchs ayant produit des avertissements d&apos;importation sont conservés ici avec les messages.</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Manuel d&apos;utilisation</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Rechercher des mises à jour...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>Open Patch</source>
        <translation>Ouvrir un patch</translation>
    </message>
    <message>
        <source>Patches (*.tpatch *.mpz *.elm *.elmbackup);;All files (*)</source>
        <translation>Patchs (*.tpatch *.mpz *.elm *.elmbackup);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Ouvrir un enregistrement</translation>
    </message>
    <message>
        <source>Playback paused.</source>
        <translation>Lecture en pause.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Aller à l&apos;image</translation>
    </message>
    <message>
        <source>Frame (0 - %1):</source>
        <translation>Image (0 - %1) :</translation>
    </message>
    <message>
        <source>Monitor image copied to the clipboard.</source>
        <translation>Image du moniteur copiée dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Interface theme: %1</source>
        <translation>Thème de l&apos;interface : %1</translation>
    </message>
    <message>
        <source>Interface Theme</source>
        <translation>Thème de l&apos;interface</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>There is no writable logs folder.</source>
        <translation>Aucun dossier de journaux accessible en écriture.</translation>
    </message>
    <message>
        <source>Logs folder: %1</source>
        <translation>Dossier des journaux : %1</translation>
    </message>
    <message>
        <source>About Torvane TALU</source>
        <translation>À propos de Torvane TALU</translation>
    </message>
    <message>
        <source>See what an LED installation shows for a stream of Art-Net DMX data.</source>
        <translation>Voyez ce qu&apos;affiche une installation LED pour un flux de données Art-Net DMX.</translation>
    </message>
    <message>
        <source>Version %1, built %2.</source>
        <translation>Version %1, compilée le %2.</translation>
    </message>
    <message>
        <source>Running on Qt %1.</source>
        <translation>Fonctionne sous Qt %1.</translation>
    </message>
    <message>
        <source>This program uses:</source>
        <translation>Ce programme utilise :</translation>
    </message>
    <message>
        <source>Qt %1 (The Qt Company), under the GNU Lesser General Public License version 3.</source>
        <translation>Qt %1 (The Qt Company), sous licence GNU Lesser General Public License version 3.</translation>
    </message>
    <message>
        <source>zlib (Jean-loup Gailly and Mark Adler), under the zlib licence.</source>
        <translation>zlib (Jean-loup Gailly et Mark Adler), sous licence zlib.</translation>
    </message>
    <message>
        <source>Torvane TALU is © 2026 Torvane. All rights reserved.</source>
        <translation>Torvane TALU est © 2026 Torvane. Tous droits réservés.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>À propos de Qt</translation>
    </message>
    <message>
        <source>no writable logs folder</source>
        <translation>aucun dossier de journaux accessible en écriture</translation>
    </message>
    <message>
        <source>Patch could not be loaded.</source>
        <translation>Impossible de charger le patch.</translation>
    </message>
    <message>
        <source>A copy of the file and this message was saved to:
%1</source>
        <translation>Une copie du fichier et de ce message a été enregistrée dans :
%1</translation>
    </message>
    <message>
        <source>Patch Error</source>
        <translation>Erreur de patch</translation>
    </message>
    <message>
        <source>No recording loaded.</source>
        <translation>Aucun enregistrement chargé.</translation>
    </message>
    <message>
        <source>This patch has no groups.</source>
        <translation>Ce patch ne contient aucun groupe.</translation>
    </message>
    <message>
        <source>No set loaded. Give every group its own GPS-Sync recording.</source>
        <translation>Aucun jeu chargé. Attribuez à chaque groupe son propre enregistrement GPS-Sync.</translation>
    </message>
    <message>
        <source>Patch loaded but contains no drawable pixels. Check that the patch was saved from the Patch Editor with its layout.</source>
        <translation>Patch chargé, mais il ne contient aucun pixel affichable. Vérifiez que le patch a été enregistré depuis le Patch Editor avec sa disposition.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms.</source>
        <translation>%1 chargé en %2 ms.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms with %3 warning(s) - see the Patch tab.</source>
        <translation>%1 chargé en %2 ms avec %3 avertissement(s) : voir l&apos;onglet Patch.</translation>
    </message>
    <message>
        <source>%1 pixels drawn.</source>
        <translation>%1 pixels affichés.</translation>
    </message>
    <message>
        <source>A copy of the patch and its warnings is in %1</source>
        <translation>Une copie du patch et de ses avertissements se trouve dans %1</translation>
    </message>
    <message>
        <source>There is no set to play. Fill in the group recordings and press Load set first.</source>
        <translation>Aucun jeu à lire. Renseignez d&apos;abord les enregistrements des groupes et cliquez sur Charger le jeu.</translation>
    </message>
    <message>
        <source>There is no recording to play. Load a .tpx file first.</source>
        <translation>Aucun enregistrement à lire. Chargez d&apos;abord un fichier .tpx.</translation>
    </message>
    <message>
        <source>Nothing to play - no recording is loaded.</source>
        <translation>Rien à lire : aucun enregistrement n&apos;est chargé.</translation>
    </message>
    <message>
        <source>Playback controls work in Recorded playback mode.</source>
        <translation>Les commandes de lecture fonctionnent en mode Lecture d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Playing %1 recording(s) in step.</source>
        <translation>Lecture synchrone de %1 enregistrement(s).</translation>
    </message>
    <message>
        <source>Playing.</source>
        <translation>Lecture en cours.</translation>
    </message>
    <message>
        <source>Reached the end of the recording.</source>
        <translation>Fin de l&apos;enregistrement atteinte.</translation>
    </message>
    <message>
        <source>Rewound to the first frame.</source>
        <translation>Retour à la première image.</translation>
    </message>
    <message>
        <source>%1 frames at %2 fps = %3 s</source>
        <translation>%1 images à %2 fps = %3 s</translation>
    </message>
    <message>
        <source>This machine is not sustaining %1 fps (about %2 fps measured). Playback continues and drops frames to stay in real time; lower the fps yourself if you want every frame shown.</source>
        <translation>Cette machine ne tient pas %1 fps (environ %2 fps mesurés). La lecture continue en sautant des images pour rester en temps réel ; baissez vous-même la cadence si vous voulez voir chaque image.</translation>
    </message>
    <message>
        <source>Sustaining about %1 fps.</source>
        <translation>Cadence tenue : environ %1 fps.</translation>
    </message>
    <message>
        <source>GPS Mirra: one recording per group, all driven from one clock.</source>
        <translation>GPS Mirra : un enregistrement par groupe, tous pilotés par une seule horloge.</translation>
    </message>
    <message>
        <source>Standard Art-Net: a single recording drives the whole patch.</source>
        <translation>Art-Net standard : un seul enregistrement pilote tout le patch.</translation>
    </message>
    <message>
        <source>Enter a .tpx path or pick one with the ... button.</source>
        <translation>Saisissez un chemin .tpx ou choisissez-en un avec le bouton « ... ».</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable : %1</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 frames · %4 s at %5 fps</source>
        <translation>%1 · %2 · %3 images · %4 s à %5 fps</translation>
    </message>
    <message>
        <source>No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe.</source>
        <translation>Aucun patch chargé : le moniteur reste noir ; l&apos;onglet DMX affiche chaque univers enregistré.</translation>
    </message>
    <message>
        <source>Space plays and pauses.</source>
        <translation>La barre d&apos;espace lance et met en pause la lecture.</translation>
    </message>
    <message>
        <source>White channel contribution off.</source>
        <translation>Contribution des canaux blancs désactivée.</translation>
    </message>
    <message>
        <source>This patch has no W / CW / WW channels - white contribution has nothing to add.</source>
        <translation>Ce patch n&apos;a aucun canal W / CW / WW : la contribution du blanc n&apos;a rien à ajouter.</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px avec blanc (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>peak white value %1 - contribution applied.</source>
        <translation>valeur de blanc max. %1 : contribution appliquée.</translation>
    </message>
    <message>
        <source>but every white value received so far is 0. MOX writes 0 to these channels unless White Channel is configured in the project.</source>
        <translation>mais toutes les valeurs de blanc reçues jusqu&apos;ici valent 0. MOX écrit 0 dans ces canaux sauf si White Channel est configuré dans le projet.</translation>
    </message>
    <message>
        <source>%1 / %2 · port 0x%3 · channel %4 · Z %5 · rgb(%6, %7, %8)</source>
        <translation>%1 / %2 · port 0x%3 · canal %4 · Z %5 · rgb(%6, %7, %8)</translation>
    </message>
    <message>
        <source>The system gives this node a receive queue of only %1 KB (%2 KB asked for): a burst the program cannot read at once is lost. Raise the limit (net.core.rmem_max on Linux).</source>
        <translation>Le système n&apos;accorde à ce nœud qu&apos;une file de réception de %1 KB (%2 KB demandés) : une rafale que le programme ne peut pas lire aussitôt est perdue. Relevez la limite (net.core.rmem_max sous Linux).</translation>
    </message>
    <message>
        <source>The window shows each theme as you select it.</source>
        <translation>La fenêtre affiche chaque thème dès que vous le sélectionnez.</translation>
    </message>
    <message>
        <source>Network log (*.tlog)</source>
        <translation>Journal réseau (*.tlog)</translation>
    </message>
    <message>
        <source>Wireshark capture (*.pcapng)</source>
        <translation>Capture Wireshark (*.pcapng)</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>Tableau CSV (*.csv)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>Open Network Log</source>
        <translation>Ouvrir un journal réseau</translation>
    </message>
    <message>
        <source>Network logs and captures (*.tlog *.pcapng *.pcap);;All files (*)</source>
        <translation>Journaux réseau et captures (*.tlog *.pcapng *.pcap);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Network log not opened: %1</source>
        <translation>Impossible d&apos;ouvrir le journal réseau : %1</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Journal réseau</translation>
    </message>
    <message>
        <source>Opened %1: %2 records.</source>
        <translation>%1 ouvert : %2 entrées.</translation>
    </message>
    <message>
        <source>Save Network Log As</source>
        <translation>Enregistrer le journal réseau sous</translation>
    </message>
    <message>
        <source>The filter shows %1 of %2 records. Save only the records it shows?</source>
        <translation>Le filtre affiche %1 entrées sur %2. Enregistrer uniquement les entrées affichées ?</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation>Impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>Network log saved to %1 (%2 records).</source>
        <translation>Journal réseau enregistré dans %1 (%2 entrées).</translation>
    </message>
    <message>
        <source>See every packet this node receives and sends.</source>
        <translation>Affiche chaque paquet que ce nœud reçoit et envoie.</translation>
    </message>
    <message>
        <source>Capturing on %1.</source>
        <translation>Capture sur %1 en cours.</translation>
    </message>
    <message>
        <source>Starting the capture on %1...</source>
        <translation>Démarrage de la capture sur %1...</translation>
    </message>
    <message>
        <source>Capture on %1 stopped: %2 packets, %3 dropped by the system.</source>
        <translation>Capture sur %1 arrêtée : %2 paquets, %3 perdus par le système.</translation>
    </message>
    <message>
        <source>How to load a patch, play, go live, record, log and capture.</source>
        <translation>Comment charger un patch, lire, passer en direct, enregistrer, journaliser et capturer.</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All files (*)</source>
        <translation>Enregistrements et captures (*.tpx *.pcapng *.pcap);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>libpcap (The Tcpdump Group), in the capture helper, under the BSD licence.</source>
        <translation>libpcap (The Tcpdump Group), dans l&apos;utilitaire de capture, sous licence BSD.</translation>
    </message>
    <message>
        <source>The capture could not be read: %1</source>
        <translation>Impossible de lire la capture : %1</translation>
    </message>
    <message>
        <source>capture of %1 ArtDmx packets, as %2</source>
        <translation>capture de %1 paquets ArtDmx, au format %2</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>%1 (subnet of %2, %3)</source>
        <translation>%1 (sous-réseau de %2, %3)</translation>
    </message>
    <message>
        <source>255.255.255.255 (limited broadcast)</source>
        <translation>255.255.255.255 (diffusion limitée)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>« %1 » n&apos;est pas une adresse IPv4.</translation>
    </message>
    <message>
        <source>Cannot scan: %1</source>
        <translation>Scan impossible : %1</translation>
    </message>
    <message>
        <source>Polling %1 every 2.5 s...</source>
        <translation>Interrogation de %1 toutes les 2,5 s...</translation>
    </message>
    <message>
        <source>Export Devices</source>
        <translation>Exporter les appareils</translation>
    </message>
    <message>
        <source>Devices exported to %1.</source>
        <translation>Appareils exportés vers %1.</translation>
    </message>
    <message>
        <source>List the Art-Net nodes on the network and what is wrong with their replies.</source>
        <translation>Liste les nœuds Art-Net du réseau et ce qui ne va pas dans leurs réponses.</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe: ok, unstable, conflict (several senders), stale (nothing for 4 s) or never received. Hover a fixture for its universe&apos;s figures.</source>
        <translation>Colore chaque projecteur selon la couleur de santé de son univers : ok, instable, conflit (plusieurs sources), périmé (rien depuis 4 s) ou jamais reçu. Survolez un projecteur pour voir les chiffres de son univers.</translation>
    </message>
    <message>
        <source>A GPS-Sync set is not analysed: the table follows the live node or a Standard Art-Net recording.</source>
        <translation>Un jeu GPS-Sync n&apos;est pas analysé : le tableau suit le nœud en direct ou un enregistrement Art-Net standard.</translation>
    </message>
    <message>
        <source>No recording loaded: open a recording or a capture, or listen live.</source>
        <translation>Aucun enregistrement chargé : ouvrez un enregistrement ou une capture, ou écoutez en direct.</translation>
    </message>
    <message>
        <source>Capture %1, over the whole file.</source>
        <translation>Capture %1, sur l&apos;ensemble du fichier.</translation>
    </message>
    <message>
        <source>Recording %1 at %2 fps, over the whole file (a recording keeps no senders or sequence numbers).</source>
        <translation>Enregistrement %1 à %2 fps, sur l&apos;ensemble du fichier (un enregistrement ne conserve ni sources ni numéros de séquence).</translation>
    </message>
    <message>
        <source>Capture %1 could not be read: %2</source>
        <translation>Impossible de lire la capture %1 : %2</translation>
    </message>
    <message>
        <source>Live: the node on %1:%2, fps over the last second.</source>
        <translation>En direct : le nœud sur %1:%2, fps sur la dernière seconde.</translation>
    </message>
    <message>
        <source>Live: the node is not listening.</source>
        <translation>En direct : le nœud n&apos;écoute pas.</translation>
    </message>
    <message>
        <source>Export Universe Health</source>
        <translation>Exporter la santé des univers</translation>
    </message>
    <message>
        <source>Universe health exported to %1.</source>
        <translation>Santé des univers exportée vers %1.</translation>
    </message>
    <message>
        <source>Health Overlay</source>
        <translation>Calque de santé</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe.</source>
        <translation>Colore chaque projecteur selon la couleur de santé de son univers.</translation>
    </message>
    <message>
        <source>Universe Health...</source>
        <translation>Santé des univers...</translation>
    </message>
    <message>
        <source>Per universe and sender: rate, lost and late packets, conflicts, ArtSync.</source>
        <translation>Par univers et par source : cadence, paquets perdus et en retard, conflits, ArtSync.</translation>
    </message>
</context>
<context>
    <name>MoxStyle</name>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>Dim red</source>
        <translation>Rouge tamisé</translation>
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
        <translation>ce programme</translation>
    </message>
    <message>
        <source>online</source>
        <translation>en ligne</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n anomalie</numerusform>
            <numerusform>%n anomalies</numerusform>
        </translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapport : %1</translation>
    </message>
    <message>
        <source>Finding: %1</source>
        <translation>Anomalie : %1</translation>
    </message>
    <message>
        <source>Node Discovery</source>
        <translation>Découverte des nœuds</translation>
    </message>
    <message>
        <source>Poll:</source>
        <translation>Interroger :</translation>
    </message>
    <message>
        <source>Poll target</source>
        <translation>Cible de l&apos;interrogation</translation>
    </message>
    <message>
        <source>Where ArtPoll goes: an interface&apos;s subnet broadcast, the limited broadcast, or one address typed in.</source>
        <translation>Destination de l&apos;ArtPoll : la diffusion de sous-réseau d&apos;une interface, la diffusion limitée ou une adresse saisie.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scanner</translation>
    </message>
    <message>
        <source>Send ArtPoll now and every 2.5 s while this window is open.</source>
        <translation>Envoie un ArtPoll maintenant puis toutes les 2,5 s tant que cette fenêtre est ouverte.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exporter en CSV...</translation>
    </message>
    <message>
        <source>Scan state</source>
        <translation>État du scan</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Nom court</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Nom long</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Réponse</translation>
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
        <translation>Univers patchés sans appareil</translation>
    </message>
    <message>
        <source>Load a patch to see which of its universes no device outputs.</source>
        <translation>Chargez un patch pour voir lesquels de ses univers ne sont émis par aucun appareil.</translation>
    </message>
    <message>
        <source>Every patched universe has a device that outputs it.</source>
        <translation>Chaque univers patché est émis par un appareil.</translation>
    </message>
    <message>
        <source>Patched universes no device outputs: %1</source>
        <translation>Univers patchés qu&apos;aucun appareil n&apos;émet : %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
</context>
<context>
    <name>PacketListModel</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Dir</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>OpCode</source>
        <translation>OpCode</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Univers</translation>
    </message>
    <message>
        <source>Seq</source>
        <translation>Séq.</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>out</source>
        <translation>sortant</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrant</translation>
    </message>
</context>
<context>
    <name>PacketLog</name>
    <message>
        <source>The capture is cut short in packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>La capture s&apos;interrompt au paquet %1 (octet %2) ; les %3 paquets précédents ont été lus.</translation>
    </message>
    <message>
        <source>The capture is damaged at packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>La capture est endommagée au paquet %1 (octet %2) ; les %3 paquets précédents ont été lus.</translation>
    </message>
    <message>
        <source>%1 packets were not UDP over IPv4 and were left out.</source>
        <translation>%1 paquets n&apos;étaient pas de l&apos;UDP sur IPv4 et ont été écartés.</translation>
    </message>
    <message>
        <source>This is not a pcap capture file.</source>
        <translation>Ce n&apos;est pas un fichier de capture pcap.</translation>
    </message>
    <message>
        <source>This is not a pcapng capture file.</source>
        <translation>Ce n&apos;est pas un fichier de capture pcapng.</translation>
    </message>
    <message>
        <source>Unexpected end of filter.</source>
        <translation>Fin de filtre inattendue.</translation>
    </message>
    <message>
        <source>Missing &apos;)&apos;.</source>
        <translation>Parenthèse &apos;)&apos; manquante.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valeur manquante après &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unexpected token: %1</source>
        <translation>Élément inattendu : %1</translation>
    </message>
    <message>
        <source>The filter is nested too deeply (more than %1 levels of &apos;!&apos; and &apos;(&apos;).</source>
        <translation>Le filtre est trop imbriqué (plus de %1 niveaux de &apos;!&apos; et de &apos;(&apos;).</translation>
    </message>
    <message>
        <source>source or destination</source>
        <translation>source ou destination</translation>
    </message>
    <message>
        <source>This is neither a packet log (.tlog) nor a pcapng or pcap capture.</source>
        <translation>Ce n&apos;est ni un journal de paquets (.tlog), ni une capture pcapng ou pcap.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>Impossible d&apos;ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>Cannot write the packet log %1: %2</source>
        <translation>Impossible d&apos;écrire le journal de paquets %1 : %2</translation>
    </message>
    <message>
        <source>SEND FAILED</source>
        <translation>ÉCHEC D&apos;ENVOI</translation>
    </message>
    <message>
        <source>NOT SENT</source>
        <translation>NON ENVOYÉ</translation>
    </message>
    <message>
        <source>PARTIAL WRITE</source>
        <translation>ÉCRITURE PARTIELLE</translation>
    </message>
    <message>
        <source>device offline (no ArtPollReply within the liveness window)</source>
        <translation>appareil hors ligne (aucun ArtPollReply dans la fenêtre de présence)</translation>
    </message>
    <message>
        <source>output is closed (udpTransferOpen = false)</source>
        <translation>sortie fermée (udpTransferOpen = false)</translation>
    </message>
    <message>
        <source>Device Manager test broadcast is active</source>
        <translation>la diffusion de test du Device Manager est active</translation>
    </message>
    <message>
        <source>socket unavailable (adapter is being switched)</source>
        <translation>socket indisponible (changement de carte réseau en cours)</translation>
    </message>
    <message>
        <source>target address could not be resolved</source>
        <translation>l&apos;adresse cible n&apos;a pas pu être résolue</translation>
    </message>
    <message>
        <source>Access denied. A broadcast address was used on a socket that does not have SO_BROADCAST enabled.</source>
        <translation>Accès refusé. Une adresse de broadcast a été utilisée sur un socket sans SO_BROADCAST activé.</translation>
    </message>
    <message>
        <source>The datagram is larger than the maximum the transport supports. Check the channel count and the interface MTU.</source>
        <translation>Le datagramme dépasse la taille maximale prise en charge par le transport. Vérifiez le nombre de canaux et la MTU de l&apos;interface.</translation>
    </message>
    <message>
        <source>The requested address is not valid in this context. The adapter may have lost its IP address.</source>
        <translation>L&apos;adresse demandée n&apos;est pas valide dans ce contexte. La carte réseau a peut-être perdu son adresse IP.</translation>
    </message>
    <message>
        <source>The network is down. The adapter is disconnected or disabled.</source>
        <translation>Le réseau est hors service. La carte réseau est déconnectée ou désactivée.</translation>
    </message>
    <message>
        <source>The network is unreachable. There is no route from the selected adapter to this destination.</source>
        <translation>Le réseau est inaccessible. Il n&apos;existe aucune route de la carte réseau sélectionnée vers cette destination.</translation>
    </message>
    <message>
        <source>The remote host reset the connection. An earlier packet triggered an ICMP port-unreachable reply, which means nothing is listening on the destination port.</source>
        <translation>L&apos;hôte distant a réinitialisé la connexion. Un paquet précédent a déclenché une réponse ICMP port-unreachable : rien n&apos;écoute sur le port de destination.</translation>
    </message>
    <message>
        <source>No buffer space available. The send queue is full: the interface cannot drain packets as fast as they are being produced, or the destination MAC has not been resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or checking the link usually resolves it.</source>
        <translation>Plus d&apos;espace tampon disponible. La file d&apos;envoi est pleine : l&apos;interface ne peut pas évacuer les paquets aussi vite qu&apos;ils sont produits, ou l&apos;adresse MAC de destination n&apos;a pas été résolue et les datagrammes s&apos;accumulent en attendant l&apos;ARP. Baisser la cadence ou vérifier la liaison résout généralement le problème.</translation>
    </message>
    <message>
        <source>The destination host is down.</source>
        <translation>L&apos;hôte de destination est hors service.</translation>
    </message>
    <message>
        <source>No route to host. ARP could not resolve the destination MAC address, so the frame was never built. This is the usual cause when nothing appears on the wire at all.</source>
        <translation>Aucune route vers l&apos;hôte. L&apos;ARP n&apos;a pas pu résoudre l&apos;adresse MAC de destination, la trame n&apos;a donc jamais été construite. C&apos;est la cause habituelle quand rien n&apos;apparaît sur le câble.</translation>
    </message>
    <message>
        <source>Cannot write the capture file: %1</source>
        <translation>Impossible d&apos;écrire le fichier de capture : %1</translation>
    </message>
    <message>
        <source>This is not a packet log file (.tlog).</source>
        <translation>Ce n&apos;est pas un fichier journal de paquets (.tlog).</translation>
    </message>
    <message>
        <source>The packet log is version %1 with %2-byte records; this program reads version 1 with 296-byte records.</source>
        <translation>Le journal de paquets est en version %1 avec des entrées de %2 octets ; ce programme lit la version 1 avec des entrées de 296 octets.</translation>
    </message>
    <message>
        <source>The packet log&apos;s header is cut short.</source>
        <translation>L&apos;en-tête du journal de paquets est tronqué.</translation>
    </message>
    <message>
        <source>Record %1 (at byte %2) is damaged; the %3 records before it were read.</source>
        <translation>L&apos;entrée %1 (octet %2) est endommagée ; les %3 entrées précédentes ont été lues.</translation>
    </message>
    <message>
        <source>The packet log is cut short in record %1 (at byte %2); the %3 records before it were read.</source>
        <translation>Le journal de paquets s&apos;interrompt à l&apos;entrée %1 (octet %2) ; les %3 entrées précédentes ont été lues.</translation>
    </message>
    <message>
        <source>The capture helper (%1) is not installed beside the program, so adapter capture is not available.</source>
        <translation>L&apos;utilitaire de capture (%1) n&apos;est pas installé à côté du programme ; la capture sur une carte réseau n&apos;est donc pas disponible.</translation>
    </message>
    <message>
        <source>The capture helper could not list the adapters: %1</source>
        <translation>L&apos;utilitaire de capture n&apos;a pas pu lister les cartes réseau : %1</translation>
    </message>
    <message>
        <source>The capture helper could not be started: %1</source>
        <translation>L&apos;utilitaire de capture n&apos;a pas pu être démarré : %1</translation>
    </message>
    <message>
        <source>The capture helper&apos;s output is damaged: %1</source>
        <translation>La sortie de l&apos;utilitaire de capture est endommagée : %1</translation>
    </message>
    <message>
        <source>The capture helper stopped unexpectedly; the %1 packets captured until then are kept.</source>
        <translation>L&apos;utilitaire de capture s&apos;est arrêté de manière inattendue ; les %1 paquets capturés jusque-là sont conservés.</translation>
    </message>
    <message>
        <source>Capturing on %1 is not permitted (%2). Only the capture helper may capture: join the group &quot;%3&quot; (sudo usermod -aG %3 $USER, then log in again), or give a helper you built yourself the right with: sudo setcap cap_net_raw,cap_net_admin=eip %4</source>
        <translation>La capture sur %1 n&apos;est pas autorisée (%2). Seul l&apos;utilitaire de capture peut capturer : rejoignez le groupe « %3 » (sudo usermod -aG %3 $USER, puis reconnectez-vous), ou donnez ce droit à un utilitaire que vous avez compilé vous-même avec : sudo setcap cap_net_raw,cap_net_admin=eip %4</translation>
    </message>
    <message>
        <source>There is no adapter %1 to capture on.</source>
        <translation>Il n&apos;y a aucune carte réseau %1 sur laquelle capturer.</translation>
    </message>
    <message>
        <source>Capture on %1 failed: %2</source>
        <translation>Échec de la capture sur %1 : %2</translation>
    </message>
    <message>
        <source>This is neither a pcapng nor a pcap capture.</source>
        <translation>Ce n&apos;est ni une capture pcapng ni une capture pcap.</translation>
    </message>
    <message>
        <source>The capture could not be written: %1</source>
        <translation>Impossible d&apos;écrire la capture : %1</translation>
    </message>
</context>
<context>
    <name>PacketLogWindow</name>
    <message>
        <source>%1 records · %2 shown · %3 dropped</source>
        <translation>%1 entrées · %2 affichées · %3 perdues</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Journal réseau</translation>
    </message>
    <message>
        <source>Network Log - %1 (read-only)</source>
        <translation>Journal réseau - %1 (lecture seule)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Stop adding new packets to the list; the node goes on receiving.</source>
        <translation>Ne plus ajouter de nouveaux paquets à la liste ; le nœud continue de recevoir.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Packet fields</source>
        <translation>Champs du paquet</translation>
    </message>
    <message>
        <source>Packet bytes</source>
        <translation>Octets du paquet</translation>
    </message>
    <message>
        <source>Reading stopped; the records read until then are shown.</source>
        <translation>Lecture arrêtée ; les entrées lues jusque-là sont affichées.</translation>
    </message>
    <message>
        <source>Capture on:</source>
        <translation>Capture sur :</translation>
    </message>
    <message>
        <source>Capture adapter</source>
        <translation>Carte réseau de capture</translation>
    </message>
    <message>
        <source>The network adapter to capture Art-Net from, as a packet analyser does.</source>
        <translation>La carte réseau sur laquelle capturer l&apos;Art-Net, comme le fait un analyseur de paquets.</translation>
    </message>
    <message>
        <source>Stop Capture</source>
        <translation>Arrêter la capture</translation>
    </message>
    <message>
        <source>Start Capture</source>
        <translation>Démarrer la capture</translation>
    </message>
    <message>
        <source>Capture every Art-Net packet on the adapter, also those not meant for this node.</source>
        <translation>Capturer chaque paquet Art-Net sur la carte réseau, y compris ceux qui ne sont pas destinés à ce nœud.</translation>
    </message>
    <message>
        <source>Capture state</source>
        <translation>État de la capture</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>Lecture du fichier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop reading the file and keep the records read so far.</source>
        <translation>Arrêter la lecture du fichier et conserver les entrées lues jusqu&apos;ici.</translation>
    </message>
</context>
<context>
    <name>PatchBar</name>
    <message>
        <source>No patch loaded.</source>
        <translation>Aucun patch chargé.</translation>
    </message>
    <message>
        <source>Patch File</source>
        <translation>Fichier de patch</translation>
    </message>
    <message>
        <source>Path to a patch file (.tpatch, .mpz, .elm)</source>
        <translation>Chemin d&apos;un fichier de patch (.tpatch, .mpz, .elm)</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a patch file</source>
        <translation>Choisir un fichier de patch</translation>
    </message>
    <message>
        <source>Patch file path</source>
        <translation>Chemin du fichier de patch</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Load the patch and build the monitor</source>
        <translation>Charger le patch et construire le moniteur</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Enter a patch path or pick one with the ... button.</source>
        <translation>Saisissez le chemin d&apos;un patch ou choisissez-en un avec le bouton « ... ».</translation>
    </message>
    <message>
        <source>Select Patch File</source>
        <translation>Choisir un fichier de patch</translation>
    </message>
    <message>
        <source>Patch Files (*.tpatch *.mpz *.elm);;Torvane MOX Patch (*.tpatch);;MADRIX 5 Patch (*.mpz);;ENTTEC ELM Project (*.elm);;All Files (*)</source>
        <translation>Fichiers de patch (*.tpatch *.mpz *.elm);;Patch Torvane MOX (*.tpatch);;Patch MADRIX 5 (*.mpz);;Projet ENTTEC ELM (*.elm);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>PatchSummaryPanel</name>
    <message>
        <source>Patch Summary</source>
        <translation>Résumé du patch</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>Aucun patch chargé.</translation>
    </message>
    <message>
        <source>Universes</source>
        <translation>Univers</translation>
    </message>
    <message>
        <source>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, universe list and channel ranges.</source>
        <translation>Chargez un patch (.tpatch, MADRIX .mpz ou ELM .elm) pour voir sa structure, la liste de ses univers et ses plages de canaux.</translation>
    </message>
    <message>
        <source>device %1</source>
        <translation>appareil %1</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Appareil n° %1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>format %1</translation>
    </message>
    <message>
        <source>imported from %1</source>
        <translation>importé depuis %1</translation>
    </message>
    <message>
        <source>(unnamed project)</source>
        <translation>(projet sans nom)</translation>
    </message>
    <message>
        <source>%1 ch limit</source>
        <translation>limite de %1 canaux</translation>
    </message>
    <message>
        <source>no white channels</source>
        <translation>aucun canal blanc</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px avec blanc (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>%1 groups · %2 universes · %3 fixtures</source>
        <translation>%1 groupes · %2 univers · %3 projecteurs</translation>
    </message>
    <message>
        <source>%1 pixels (%2 drawable) · %3 kinetics</source>
        <translation>%1 pixels (%2 affichables) · %3 cinétiques</translation>
    </message>
    <message>
        <source>Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device Manager, set the Universe of this tester&apos;s &quot;BindIdx N&quot; row to N.</source>
        <translation>Art-Net : l&apos;univers MADRIX N arrive ici en Port-Address N-1. Dans le Device Manager de MADRIX, réglez l&apos;Universe de la ligne « BindIdx N » de ce testeur sur N.</translation>
    </message>
    <message>
        <source>Art-Net: the universes are taken from the ELM project as they are (ELM universe = Port-Address).</source>
        <translation>Art-Net : les univers sont repris tels quels du projet ELM (univers ELM = Port-Address).</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
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
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Groupe : %1</translation>
    </message>
    <message>
        <source>Torvoverse: %1</source>
        <translation>Torvoverse : %1</translation>
    </message>
    <message>
        <source>Port address: 0x%1</source>
        <translation>Port-Address : 0x%1</translation>
    </message>
    <message>
        <source>Start channel: %1</source>
        <translation>Canal de départ : %1</translation>
    </message>
    <message>
        <source>Slots: %1</source>
        <translation>Canaux : %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>PlaybackPanel</name>
    <message>
        <source>Path to a .tpx recording</source>
        <translation>Chemin d&apos;un enregistrement .tpx</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a .tpx recording</source>
        <translation>Choisir un enregistrement .tpx</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Stop and return to the first frame</source>
        <translation>Arrêter et revenir à la première image</translation>
    </message>
    <message>
        <source>Frames are presented at exactly this rate.
The timestamp stored in the file is ignored - its scale is not reliable.</source>
        <translation>Les images sont lues exactement à cette cadence.
L&apos;horodatage stocké dans le fichier est ignoré : son échelle n&apos;est pas fiable.</translation>
    </message>
    <message>
        <source>Loop playback</source>
        <translation>Lecture en boucle</translation>
    </message>
    <message>
        <source>Play the recording end to end, over and over.
This is how you check whether a period-based recording loops seamlessly.</source>
        <translation>Lit l&apos;enregistrement du début à la fin, encore et encore.
C&apos;est ainsi que l&apos;on vérifie qu&apos;un enregistrement périodique boucle sans raccord visible.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Image %1 / %2</translation>
    </message>
    <message>
        <source>Select Recording</source>
        <translation>Choisir un enregistrement</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All Files (*)</source>
        <translation>Enregistrements et captures (*.tpx *.pcapng *.pcap);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>PlaybackTransport</name>
    <message>
        <source>Measured %1 fps</source>
        <translation>%1 fps mesurés</translation>
    </message>
    <message>
        <source>%1 frame(s) dropped</source>
        <translation>%1 image(s) sautée(s)</translation>
    </message>
    <message>
        <source>%1 ms/frame (max %2 fps)</source>
        <translation>%1 ms/image (max. %2 fps)</translation>
    </message>
    <message>
        <source>%1 ms/frame</source>
        <translation>%1 ms/image</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rembobiner</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Position de lecture</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
</context>
<context>
    <name>RecordingWriter</name>
    <message>
        <source>The file was removed or renamed while recording.</source>
        <translation>Le fichier a été supprimé ou renommé pendant l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Impossible d&apos;écrire le fichier.</translation>
    </message>
</context>
<context>
    <name>TPatch</name>
    <message>
        <source>the &lt;console&gt; root element is missing</source>
        <translation>l&apos;élément racine &lt;console&gt; est absent</translation>
    </message>
    <message>
        <source>the document has no root element</source>
        <translation>le document n&apos;a pas d&apos;élément racine</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (ligne %2)</translation>
    </message>
    <message>
        <source>%1 fixture(s) use 16-bit LED types (%2); the monitor shows the high byte of each color only.</source>
        <translation>%1 projecteur(s) utilisent des types de LED 16 bits (%2) ; le moniteur n&apos;affiche que l&apos;octet de poids fort de chaque couleur.</translation>
    </message>
    <message>
        <source>Color channels the tester cannot show yet were ignored: %1</source>
        <translation>Les canaux de couleur que le testeur ne sait pas encore afficher ont été ignorés : %1</translation>
    </message>
    <message>
        <source>%1 fixture(s) have a pixel split across a universe boundary; its channels in the next universe are not shown.</source>
        <translation>%1 projecteur(s) ont un pixel à cheval sur deux univers ; ses canaux dans l&apos;univers suivant ne sont pas affichés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) run past DMX channel 512 of their universe; channels beyond 512 are not shown.</source>
        <translation>%1 projecteur(s) dépassent le canal DMX 512 de leur univers ; les canaux au-delà de 512 ne sont pas affichés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) output %2 rather than Art-Net and were skipped.</source>
        <translation>%1 projecteur(s) sortent en %2 et non en Art-Net, et ont été ignorés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use LED types the tester does not know (%2) and were skipped.</source>
        <translation>%1 projecteur(s) utilisent des types de LED inconnus du testeur (%2) et ont été ignorés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use a universe that does not fit an Art-Net Port-Address and were skipped.</source>
        <translation>%1 projecteur(s) utilisent un univers qui ne tient pas dans un Port-Address Art-Net et ont été ignorés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) are incomplete in the file and were skipped.</source>
        <translation>%1 projecteur(s) sont incomplets dans le fichier et ont été ignorés.</translation>
    </message>
    <message>
        <source>%1 fixture(s) were skipped: the project has more than %2 LEDs.</source>
        <translation>%1 projecteur(s) ont été ignorés : le projet compte plus de %2 LED.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable ELM project: %2</source>
        <translation>« %1 » n&apos;est pas un projet ELM lisible : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no DMX fixtures that can be shown.</source>
        <translation>« %1 » ne contient aucun projecteur DMX affichable.</translation>
    </message>
    <message>
        <source>zlib could not be initialised</source>
        <translation>impossible d&apos;initialiser zlib</translation>
    </message>
    <message>
        <source>the unpacked data is too large</source>
        <translation>les données décompressées sont trop volumineuses</translation>
    </message>
    <message>
        <source>the file is truncated</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message>
        <source>zlib error %1</source>
        <translation>erreur zlib %1</translation>
    </message>
    <message>
        <source>Error:</source>
        <translation>Erreur :</translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation>Avertissements :</translation>
    </message>
    <message>
        <source>the &lt;madrix_patch&gt; root element is missing</source>
        <translation>l&apos;élément racine &lt;madrix_patch&gt; est absent</translation>
    </message>
    <message>
        <source>the &lt;fixture_list&gt; element is missing</source>
        <translation>l&apos;élément &lt;fixture_list&gt; est absent</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable MADRIX patch: %2</source>
        <translation>« %1 » n&apos;est pas un patch MADRIX lisible : %2</translation>
    </message>
    <message>
        <source>Some MADRIX fields are not supported yet and were ignored: %1</source>
        <translation>Certains champs MADRIX ne sont pas encore pris en charge et ont été ignorés : %1</translation>
    </message>
    <message>
        <source>%1 MADRIX fixture group(s) were found, but groups are not imported yet; all fixtures were placed in one group.</source>
        <translation>%1 groupe(s) de projecteurs MADRIX trouvé(s), mais les groupes ne sont pas encore importés ; tous les projecteurs ont été placés dans un seul groupe.</translation>
    </message>
    <message>
        <source>%1 rotated multi-pixel fixture(s): the pixel layout after rotation has not been verified against MADRIX yet. Check them on the monitor.</source>
        <translation>%1 projecteur(s) multipixel pivoté(s) : la disposition des pixels après rotation n&apos;a pas encore été vérifiée par rapport à MADRIX. Contrôlez-les sur le moniteur.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have pixels whose color channels span more than 6 DMX channels; only the first 6 are shown.</source>
        <translation>%1 projecteur(s) ont des pixels dont les canaux de couleur s&apos;étendent sur plus de 6 canaux DMX ; seuls les 6 premiers sont affichés.</translation>
    </message>
    <message>
        <source>%1 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs reaches Art-Net.</source>
        <translation>%1 projecteur(s) DVI ont été ignorés : ils n&apos;ont pas d&apos;adresse DMX, donc rien d&apos;eux n&apos;arrive en Art-Net.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no color channel the tester can show and were skipped.</source>
        <translation>%1 projecteur(s) n&apos;ont aucun canal de couleur affichable par le testeur et ont été ignorés.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved by %2 (file version %3), which this importer has not been checked against. Verify the result on the monitor.</source>
        <translation>« %1 » a été enregistré par %2 (version de fichier %3), avec laquelle cet importateur n&apos;a pas été vérifié. Contrôlez le résultat sur le moniteur.</translation>
    </message>
    <message>
        <source>Could not open &quot;%1&quot;: %2</source>
        <translation>Impossible d&apos;ouvrir « %1 » : %2</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Appareil n° %1</translation>
    </message>
    <message>
        <source>%1 fixtures overlap on %2 screen position(s) - only the topmost one is visible. Use the group filter to isolate a torvoverse.</source>
        <translation>%1 projecteurs se superposent sur %2 position(s) à l&apos;écran : seul celui du dessus est visible. Utilisez le filtre de groupes pour isoler un torvoverse.</translation>
    </message>
    <message>
        <source>Universe numbers above 15 are truncated to 4 bits on the wire (Art-Net PortAddress). Affected universes: %1</source>
        <translation>Les numéros d&apos;univers supérieurs à 15 sont tronqués à 4 bits sur le réseau (PortAddress Art-Net). Univers concernés : %1</translation>
    </message>
    <message>
        <source>%1 port address(es) are used by more than one torvoverse (%2). Recorded playback can still tell them apart by frame order, but a live capture at a single IP will only see one device&apos;s data.</source>
        <translation>%1 Port-Address sont utilisés par plusieurs torvoverses (%2). La lecture d&apos;enregistrement peut encore les distinguer grâce à l&apos;ordre dans l&apos;image, mais une capture en direct sur une seule IP ne verra que les données d&apos;un seul appareil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid .tpatch file: %2</source>
        <translation>« %1 » n&apos;est pas un fichier .tpatch valide : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no groups.</source>
        <translation>« %1 » ne contient aucun groupe.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no usable scene layout and will not be drawn.</source>
        <translation>%1 projecteur(s) n&apos;ont pas de disposition de scène utilisable et ne seront pas affichés.</translation>
    </message>
    <message>
        <source>(+%1 more)</source>
        <translation>(+%1 autres)</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a recording.</source>
        <translation>« %1 » est un dossier, pas un enregistrement.</translation>
    </message>
    <message>
        <source>All %1 file(s) carry the %2-byte GPS metadata block</source>
        <translation>Les %1 fichier(s) contiennent tous le bloc de métadonnées GPS de %2 octets</translation>
    </message>
    <message>
        <source>%1 file(s) are not GPS-Sync recordings</source>
        <translation>%1 fichier(s) ne sont pas des enregistrements GPS-Sync</translation>
    </message>
    <message>
        <source>%1 - these files begin directly with an Art-Net packet, with no GPS metadata block in front of it. They were recorded with GPS Sync Compatible Record OFF and belong in the Standard Art-Net tab.</source>
        <translation>%1 : ces fichiers commencent directement par un paquet Art-Net, sans bloc de métadonnées GPS devant. Ils ont été enregistrés avec GPS Sync Compatible Record désactivé et relèvent de l&apos;onglet Art-Net standard.</translation>
    </message>
    <message>
        <source>Patch has no drawable universes to compare against</source>
        <translation>Le patch n&apos;a aucun univers affichable pour comparaison</translation>
    </message>
    <message>
        <source>The recordings will still play, but nothing verifies that their universe layout matches this patch.</source>
        <translation>Les enregistrements seront tout de même lus, mais rien ne vérifie que leur organisation en univers correspond à ce patch.</translation>
    </message>
    <message>
        <source>%1: file has %2, patch expects %3</source>
        <translation>%1 : le fichier en contient %2, le patch en attend %3</translation>
    </message>
    <message>
        <source>Universe count per frame matches the patch in every group</source>
        <translation>Le nombre d&apos;univers par image correspond au patch dans chaque groupe</translation>
    </message>
    <message>
        <source>Universe count per frame does not match the patch</source>
        <translation>Le nombre d&apos;univers par image ne correspond pas au patch</translation>
    </message>
    <message>
        <source>%1. The recording was made from a different patch, or a file is assigned to the wrong group.</source>
        <translation>%1. L&apos;enregistrement a été réalisé avec un autre patch, ou un fichier est attribué au mauvais groupe.</translation>
    </message>
    <message>
        <source>%1 (record %2 is universe %3, patch expects %4; expected order %5)</source>
        <translation>%1 (l&apos;entrée %2 est l&apos;univers %3, le patch attend %4 ; ordre attendu %5)</translation>
    </message>
    <message>
        <source>Record order inside a frame matches the patch in every group</source>
        <translation>L&apos;ordre des entrées dans une image correspond au patch dans chaque groupe</translation>
    </message>
    <message>
        <source>Record order inside a frame does not match the patch</source>
        <translation>L&apos;ordre des entrées dans une image ne correspond pas au patch</translation>
    </message>
    <message>
        <source>%1. Every pixel still lights up, but on the wrong torvoverse - this is the failure that looks correct at a glance. Note: MOX writes the universe field of a GPS record as (subNet&lt;&lt;8)|universe, while the wire uses the 15-bit PortAddress; the two only differ when a universe number is above 15.</source>
        <translation>%1. Chaque pixel s&apos;allume quand même, mais sur le mauvais torvoverse : c&apos;est l&apos;erreur qui paraît correcte au premier coup d&apos;œil. Remarque : MOX écrit le champ universe d&apos;une entrée GPS sous la forme (subNet&lt;&lt;8)|universe, alors que le réseau utilise le PortAddress sur 15 bits ; les deux ne diffèrent que si un numéro d&apos;univers dépasse 15.</translation>
    </message>
    <message>
        <source>%1: header says %2 bytes per frame, the file measures %3</source>
        <translation>%1 : l&apos;en-tête indique %2 octets par image, le fichier en mesure %3</translation>
    </message>
    <message>
        <source>%1: universeByteLength sums to %2 but frameByteSize says %3</source>
        <translation>%1 : la somme des universeByteLength vaut %2 mais frameByteSize indique %3</translation>
    </message>
    <message>
        <source>Frame byte size in the header matches the packets on disk</source>
        <translation>La taille d&apos;image en octets dans l&apos;en-tête correspond aux paquets sur le disque</translation>
    </message>
    <message>
        <source>Frame byte size in the header is wrong</source>
        <translation>La taille d&apos;image en octets dans l&apos;en-tête est fausse</translation>
    </message>
    <message>
        <source>%1. A GPS device seeks by frameByteSize; a wrong value makes it land in the middle of a packet.</source>
        <translation>%1. Un appareil GPS se positionne d&apos;après frameByteSize ; une valeur fausse le fait tomber au milieu d&apos;un paquet.</translation>
    </message>
    <message>
        <source>%1: %2 usable byte(s), %3 expected for %4 frame(s)</source>
        <translation>%1 : %2 octet(s) utilisable(s), %3 attendus pour %4 image(s)</translation>
    </message>
    <message>
        <source>Every frame occupies exactly the same number of bytes</source>
        <translation>Chaque image occupe exactement le même nombre d&apos;octets</translation>
    </message>
    <message>
        <source>Some files carry bytes that do not form a whole frame</source>
        <translation>Certains fichiers contiennent des octets qui ne forment pas une image entière</translation>
    </message>
    <message>
        <source>%1. The recording was cut short, or the universe lengths changed while it was running.</source>
        <translation>%1. L&apos;enregistrement a été interrompu, ou la longueur des univers a changé en cours d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>All %1 recording(s) are exactly %2 frame(s) long</source>
        <translation>Les %1 enregistrement(s) durent tous exactement %2 image(s)</translation>
    </message>
    <message>
        <source>Recordings differ in length by %1 frame(s)</source>
        <translation>La longueur des enregistrements diffère de %1 image(s)</translation>
    </message>
    <message>
        <source>%1. GPS devices stay locked by frame index, so the show falls apart as soon as the shortest file ends. Playback here stops at frame %2.</source>
        <translation>%1. Les appareils GPS restent calés sur l&apos;index d&apos;image : le show se désagrège dès que le fichier le plus court se termine. Ici, la lecture s&apos;arrête à l&apos;image %2.</translation>
    </message>
    <message>
        <source>%1: header says %2, file holds %3</source>
        <translation>%1 : l&apos;en-tête indique %2, le fichier en contient %3</translation>
    </message>
    <message>
        <source>Frame count in the header matches the packets on disk</source>
        <translation>Le nombre d&apos;images dans l&apos;en-tête correspond aux paquets sur le disque</translation>
    </message>
    <message>
        <source>Frame count in the header is out of date</source>
        <translation>Le nombre d&apos;images dans l&apos;en-tête n&apos;est pas à jour</translation>
    </message>
    <message>
        <source>%1. MOX writes this number when the recording is stopped; a zero or stale value means the recording was never closed properly.</source>
        <translation>%1. MOX écrit ce nombre à l&apos;arrêt de l&apos;enregistrement ; une valeur nulle ou périmée signifie que l&apos;enregistrement n&apos;a jamais été correctement fermé.</translation>
    </message>
    <message>
        <source>Timestamps are in lockstep across all %1 file(s), over all %2 frame(s)</source>
        <translation>Les horodatages sont synchrones dans les %1 fichier(s), sur l&apos;ensemble des %2 image(s)</translation>
    </message>
    <message>
        <source>Timestamps vary by up to %1 s inside a single frame</source>
        <translation>Les horodatages varient jusqu&apos;à %1 s au sein d&apos;une même image</translation>
    </message>
    <message>
        <source>Worst in group %1. All records of one frame are written in the same pass and should carry one value.</source>
        <translation>Pire cas dans le groupe %1. Toutes les entrées d&apos;une image sont écrites en une seule passe et devraient porter la même valeur.</translation>
    </message>
    <message>
        <source>Timestamps drift by up to %1 s between files</source>
        <translation>Les horodatages dérivent jusqu&apos;à %1 s entre les fichiers</translation>
    </message>
    <message>
        <source>First seen at frame %1. MOX stamps every group with the same value in a given frame, so a difference means these files are not from one recording session.</source>
        <translation>Constaté pour la première fois à l&apos;image %1. MOX horodate chaque groupe avec la même valeur dans une image donnée : une différence signifie que ces fichiers ne proviennent pas d&apos;une même session d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>The set carries %1 universe(s); the patch has %2</source>
        <translation>Le jeu contient %1 univers ; le patch en compte %2</translation>
    </message>
    <message>
        <source>Pixels with no record behind them stay dark for the whole run.</source>
        <translation>Les pixels sans entrée correspondante restent noirs pendant toute la lecture.</translation>
    </message>
    <message>
        <source>The set covers all %1 torvoverse(s) in the patch</source>
        <translation>Le jeu couvre les %1 torvoverse(s) du patch</translation>
    </message>
    <message>
        <source>Two or more groups share a universe</source>
        <translation>Plusieurs groupes partagent un univers</translation>
    </message>
    <message>
        <source>Universe(s) %1. Two files write the same pixels and the last one drawn wins.</source>
        <translation>Univers %1. Deux fichiers écrivent les mêmes pixels et le dernier affiché l&apos;emporte.</translation>
    </message>
    <message>
        <source>No patch loaded</source>
        <translation>Aucun patch chargé</translation>
    </message>
    <message>
        <source>A GPS-Sync set is defined by the patch: one recording per group. Load a .tpatch first.</source>
        <translation>Un jeu GPS-Sync est défini par le patch : un enregistrement par groupe. Chargez d&apos;abord un .tpatch.</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>Aucun patch chargé.</translation>
    </message>
    <message>
        <source>%1 of %2 group(s) have no recording</source>
        <translation>%1 groupe(s) sur %2 sans enregistrement</translation>
    </message>
    <message>
        <source>A GPS-Sync show is only complete when every group has its own file. Missing: %1</source>
        <translation>Un show GPS-Sync n&apos;est complet que si chaque groupe a son propre fichier. Manquant(s) : %1</translation>
    </message>
    <message>
        <source>%1 recording(s) still missing.</source>
        <translation>%1 enregistrement(s) encore manquant(s).</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 group(s), %1 recording(s) supplied</source>
        <translation>%1 groupe(s), %1 enregistrement(s) fourni(s)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The same file is assigned to more than one group</source>
        <translation>Le même fichier est attribué à plusieurs groupes</translation>
    </message>
    <message>
        <source>%1. Each group has its own recording; reusing one file makes two groups play the same animation.</source>
        <translation>%1. Chaque groupe a son propre enregistrement ; réutiliser un fichier fait jouer la même animation à deux groupes.</translation>
    </message>
    <message>
        <source>%1: file cannot be read</source>
        <translation>%1 : fichier illisible</translation>
    </message>
    <message>
        <source>%1 of %2 file(s) could not be read.</source>
        <translation>%1 fichier(s) sur %2 illisible(s).</translation>
    </message>
    <message>
        <source>The set holds no complete frame.</source>
        <translation>Le jeu ne contient aucune image complète.</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - %3 failure(s), %4 warning(s); playback is enabled so you can see them</source>
        <translation>%1 groupe(s) - %2 images - %3 échec(s), %4 avertissement(s) ; la lecture reste possible pour que vous puissiez les voir</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - structure and sync verified</source>
        <translation>%1 groupe(s) - %2 images - structure et synchro vérifiées</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no usable DMX records.</source>
        <translation>« %1 » ne contient aucune entrée DMX utilisable.</translation>
    </message>
    <message>
        <source>Stopped parsing at byte %1 of %2 - the file is truncated or contains a record this reader does not understand. %3 record(s) were usable.</source>
        <translation>Analyse arrêtée à l&apos;octet %1 sur %2 : le fichier est tronqué ou contient une entrée que ce lecteur ne comprend pas. %3 entrée(s) utilisable(s).</translation>
    </message>
    <message>
        <source>This recording does not match the loaded patch: the patch expects %1 record(s) per frame in a fixed order, but the file repeats every %2. Playback will follow the file and map records by universe number, which cannot separate devices that share a universe.</source>
        <translation>Cet enregistrement ne correspond pas au patch chargé : le patch attend %1 entrée(s) par image dans un ordre fixe, mais le fichier se répète toutes les %2. La lecture suivra le fichier et associera les entrées par numéro d&apos;univers, ce qui ne permet pas de distinguer des appareils partageant un univers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too small to contain a single record.</source>
        <translation>« %1 » est trop petit pour contenir une seule entrée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not start with an Art-Net or KEL DMX record. It is not a Torvane recording, or it is damaged.</source>
        <translation>« %1 » ne commence pas par une entrée DMX Art-Net ou KEL. Ce n&apos;est pas un enregistrement Torvane, ou il est endommagé.</translation>
    </message>
    <message>
        <source>GPS-Sync recording: this file holds one group&apos;s universes only. Records are mapped by universe number, so pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.</source>
        <translation>Enregistrement GPS-Sync : ce fichier ne contient que les univers d&apos;un seul groupe. Les entrées sont associées par numéro d&apos;univers, les pixels hors de ce groupe restent donc noirs. Utilisez l&apos;onglet GPS Mirra pour lire ensemble un jeu complet de fichiers de groupe.</translation>
    </message>
    <message>
        <source>%1 trailing record(s) do not form a complete frame and are ignored.</source>
        <translation>%1 entrée(s) finale(s) ne forment pas une image complète et sont ignorées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not contain a complete frame.</source>
        <translation>« %1 » ne contient aucune image complète.</translation>
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
        <translation>Univers / source</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdus</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>Hors séquence</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Sync missed</source>
        <translation>Sync manquées</translation>
    </message>
    <message>
        <source>Length changes</source>
        <translation>Changements de longueur</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Dernière réception</translation>
    </message>
    <message>
        <source>Intervals min / median / max (ms)</source>
        <translation>Intervalles min / médiane / max (ms)</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>il y a %1 s</translation>
    </message>
    <message>
        <source>the recording</source>
        <translation>l&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>UniverseHealthWindow</name>
    <message numerus="yes">
        <source>ArtSync: %1 per second, %n packet(s)</source>
        <translation>
            <numerusform>ArtSync : %1 par seconde, %n paquet</numerusform>
            <numerusform>ArtSync : %1 par seconde, %n paquets</numerusform>
        </translation>
    </message>
    <message>
        <source>No ArtSync seen.</source>
        <translation>Aucun ArtSync reçu.</translation>
    </message>
    <message>
        <source>No universe yet: nothing received and no patch loaded.</source>
        <translation>Aucun univers pour l&apos;instant : rien reçu et aucun patch chargé.</translation>
    </message>
    <message numerus="yes">
        <source>%n universe(s): %1</source>
        <translation>
            <numerusform>%n univers : %1</numerusform>
            <numerusform>%n univers : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Universe Health</source>
        <translation>Santé des univers</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Start every counter again from zero.</source>
        <translation>Remettre tous les compteurs à zéro.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exporter en CSV...</translation>
    </message>
    <message>
        <source>Export the health table as CSV</source>
        <translation>Exporter le tableau de santé en CSV</translation>
    </message>
    <message>
        <source>Universe health</source>
        <translation>Santé des univers</translation>
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
        <translation>port</translation>
    </message>
    <message>
        <source>net/sub/uni</source>
        <translation>net/sub/uni</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canaux</translation>
    </message>
    <message>
        <source>target IP</source>
        <translation>IP cible</translation>
    </message>
</context>
<context>
    <name>UpdateController</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Rechercher automatiquement les mises à jour (une fois par jour)</translation>
    </message>
    <message>
        <source>Could not check for updates: %1</source>
        <translation>Impossible de rechercher les mises à jour : %1</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is the latest version.</source>
        <translation>Torvane TALU %1 est la dernière version.</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is available. You have %2.</source>
        <translation>Torvane TALU %1 est disponible. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>Download...</source>
        <translation>Télécharger...</translation>
    </message>
    <message>
        <source>Ignore This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>Les informations de mise à jour sont trop volumineuses.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>Les informations de mise à jour sont illisibles.</translation>
    </message>
    <message>
        <source>The update information names no valid version.</source>
        <translation>Les informations de mise à jour ne donnent aucune version valide.</translation>
    </message>
    <message>
        <source>The update information has no valid download page.</source>
        <translation>Les informations de mise à jour n&apos;indiquent aucune page de téléchargement valide.</translation>
    </message>
</context>
</TS>
