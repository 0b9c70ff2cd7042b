<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ArtNetNode</name>
    <message>
        <source>No socket could be created.</source>
        <translation>No se pudo crear el socket.</translation>
    </message>
    <message>
        <source>Only IPv4 addresses can be used.</source>
        <translation>Solo se pueden usar direcciones IPv4.</translation>
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
        <translation>Nodo genérico</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>No se está escuchando.</translation>
    </message>
    <message>
        <source>Not recording.</source>
        <translation>No se está grabando.</translation>
    </message>
    <message>
        <source>Listen on</source>
        <translation>Escuchar en</translation>
    </message>
    <message>
        <source>The local address this node listens on.

Running alongside Torvane MOX on the same machine? Pick a specific address, not Any: MOX binds to Any, and Windows delivers a unicast packet to the more specific socket.</source>
        <translation>La dirección local en la que escucha este nodo.

¿Se ejecuta junto a Torvane MOX en el mismo equipo? Elija una dirección concreta, no Cualquiera: MOX se vincula a Cualquiera, y Windows entrega un paquete unicast al socket más específico.</translation>
    </message>
    <message>
        <source>Any (0.0.0.0)</source>
        <translation>Cualquiera (0.0.0.0)</translation>
    </message>
    <message>
        <source>%1 (loopback)</source>
        <translation>%1 (loopback)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>List the network interfaces again</source>
        <translation>Volver a listar las interfaces de red</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Art-Net uses 6454. Change only if you know why.</source>
        <translation>Art-Net usa el 6454. Cámbielo solo si sabe por qué.</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Preset identities. Pick one, then edit the fields below.</source>
        <translation>Identidades predefinidas. Elija una y luego edite los campos de abajo.</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Nombre corto</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Nombre largo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
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
        <translation>Dejar de escuchar</translation>
    </message>
    <message>
        <source>Start listening</source>
        <translation>Empezar a escuchar</translation>
    </message>
    <message>
        <source>Record incoming stream</source>
        <translation>Grabar flujo entrante</translation>
    </message>
    <message>
        <source>Write every incoming Art-Net DMX packet to a .tpx file,
byte compatible with Torvane MOX recordings.

An existing file is appended to, not overwritten - that is how several animations end up in one file.</source>
        <translation>Escribe cada paquete Art-Net DMX entrante en un archivo .tpx,
compatible byte a byte con las grabaciones de Torvane MOX.

Si el archivo ya existe, se añade al final en lugar de sobrescribirlo: así es como varias animaciones acaban en un mismo archivo.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose where the recording is written</source>
        <translation>Elegir dónde se escribe la grabación</translation>
    </message>
    <message>
        <source>File name (.tpx is added)</source>
        <translation>Nombre de archivo (se añade .tpx)</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Cuadros por segundo</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>The frame rate of the source that is sending to us.
It only scales the 2-byte timestamp written into each record - the DMX data itself is stored exactly as received.</source>
        <translation>Los cuadros por segundo de la fuente que nos está enviando.
Solo escala la marca de tiempo de 2 bytes escrita en cada registro; los datos DMX se guardan exactamente como se reciben.</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>No patch loaded - recording works, but the monitor stays dark.</source>
        <translation>No hay ningún patch cargado: la grabación funciona, pero el monitor permanece a oscuras.</translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation>%1 (no presente)</translation>
    </message>
    <message>
        <source>Select Recording Folder</source>
        <translation>Seleccionar carpeta de grabación</translation>
    </message>
    <message>
        <source>No ArtPoll seen yet - no controller is looking for nodes.</source>
        <translation>Aún no se ha visto ningún ArtPoll: ningún controlador está buscando nodos.</translation>
    </message>
    <message>
        <source>Answering ArtPoll (%1 replies sent).</source>
        <translation>Respondiendo a ArtPoll (%1 respuestas enviadas).</translation>
    </message>
    <message>
        <source>Last ArtPoll %1 s ago - the controller may have stopped.</source>
        <translation>Último ArtPoll hace %1 s: puede que el controlador se haya detenido.</translation>
    </message>
    <message>
        <source>%1 pkt/s</source>
        <translation>%1 paq/s</translation>
    </message>
    <message>
        <source>%1 packets</source>
        <translation>%1 paquetes</translation>
    </message>
    <message>
        <source>no DMX yet</source>
        <translation>aún sin DMX</translation>
    </message>
    <message>
        <source>last %1 ms ago</source>
        <translation>último hace %1 ms</translation>
    </message>
    <message>
        <source>%1 seq errors</source>
        <translation>%1 errores de secuencia</translation>
    </message>
    <message>
        <source>%1 ignored</source>
        <translation>%1 ignorados</translation>
    </message>
</context>
<context>
    <name>DmxChannelGrid</name>
    <message>
        <source>no data</source>
        <translation>sin datos</translation>
    </message>
</context>
<context>
    <name>DmxInspector</name>
    <message>
        <source>Decimal</source>
        <translation>Decimal</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>The universe shown, by Port-Address.</source>
        <translation>El universo mostrado, por Port-Address.</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Universo</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>Canal %1: %2</translation>
    </message>
    <message>
        <source> · not patched</source>
        <translation> · sin patch</translation>
    </message>
    <message>
        <source>kinetic</source>
        <translation>cinético</translation>
    </message>
    <message>
        <source>… (%1 in all)</source>
        <translation>… (%1 en total)</translation>
    </message>
    <message>
        <source> · %1 of pixel(s) %2</source>
        <translation> · %1 de píxel(es) %2</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Display filter, e.g. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</source>
        <translation>Filtro de visualización, p. ej. artnet.opcode == artdmx &amp;&amp; ip.src == 10.0.0.1</translation>
    </message>
    <message>
        <source>Type a display filter and press Enter. Green: the filter is valid; red: it is not, and the message below says why.</source>
        <translation>Escriba un filtro de visualización y pulse Intro. Verde: el filtro es válido; rojo: no lo es, y el mensaje de abajo indica por qué.</translation>
    </message>
    <message>
        <source>Display filter</source>
        <translation>Filtro de visualización</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>GpsGroupRow</name>
    <message>
        <source>expects %1 universe(s)</source>
        <translation>espera %1 universo(s)</translation>
    </message>
    <message>
        <source>no drawable pixels</source>
        <translation>sin píxeles dibujables</translation>
    </message>
    <message>
        <source>Recording for &quot;%1&quot;</source>
        <translation>Grabación para &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for the recording of &quot;%1&quot;</source>
        <translation>Buscar la grabación de &quot;%1&quot;</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>sin verificar</translation>
    </message>
    <message>
        <source>%1 - %2 frames - %3 universe(s)/frame - %4 B/frame</source>
        <translation>%1 - %2 fotogramas - %3 universo(s)/fotograma - %4 B/fotograma</translation>
    </message>
    <message>
        <source> (patch expects %1)</source>
        <translation> (el patch espera %1)</translation>
    </message>
    <message>
        <source>file differs from the patch</source>
        <translation>el archivo difiere del patch</translation>
    </message>
    <message>
        <source>file usable</source>
        <translation>archivo utilizable</translation>
    </message>
    <message>
        <source>file unusable</source>
        <translation>archivo no utilizable</translation>
    </message>
    <message>
        <source>Recording for group</source>
        <translation>Grabación del grupo</translation>
    </message>
    <message>
        <source>Torvane Recording (*.tpx);;All Files (*)</source>
        <translation>Grabación Torvane (*.tpx);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>GpsPlaybackPanel</name>
    <message>
        <source>One recording per group, all driven from one clock.</source>
        <translation>Una grabación por grupo, todas controladas por un mismo reloj.</translation>
    </message>
    <message>
        <source>MOX writes a GPS-Sync recording as one file per group, named &lt;name&gt;_&lt;Group&gt;.tpx.
In the field each device plays its own group&apos;s file while the GPS pulse keeps them all on the same frame index.
This tab does the same: one clock drives frame n of every file at the same instant.</source>
        <translation>MOX escribe una grabación GPS-Sync como un archivo por grupo, llamado &lt;name&gt;_&lt;Group&gt;.tpx.
En la instalación, cada dispositivo reproduce el archivo de su grupo mientras el pulso GPS los mantiene a todos en el mismo índice de fotograma.
Esta pestaña hace lo mismo: un reloj controla el fotograma n de todos los archivos en el mismo instante.</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Cargue primero un patch: la lista de grupos sale de él.</translation>
    </message>
    <message>
        <source>Auto-fill from folder...</source>
        <translation>Autocompletar desde carpeta...</translation>
    </message>
    <message>
        <source>Pick the folder the recording was saved into.

MOX names GPS-Sync files &lt;name&gt;_&lt;Group&gt;.tpx, so every group can be matched by name. When a folder holds several sessions, the one that covers the most groups is chosen.</source>
        <translation>Elija la carpeta en la que se guardó la grabación.

MOX nombra los archivos GPS-Sync &lt;name&gt;_&lt;Group&gt;.tpx, así que cada grupo se puede emparejar por nombre. Si una carpeta contiene varias sesiones, se elige la que cubre más grupos.</translation>
    </message>
    <message>
        <source>Load set</source>
        <translation>Cargar conjunto</translation>
    </message>
    <message>
        <source>Open every file, verify structure and sync, then arm playback.</source>
        <translation>Abre todos los archivos, verifica la estructura y la sincronía y prepara la reproducción.</translation>
    </message>
    <message>
        <source>Structure &amp; sync report</source>
        <translation>Informe de estructura &amp; sincronía</translation>
    </message>
    <message>
        <source>Stop and return every file to its first frame</source>
        <translation>Detener y devolver cada archivo a su primer fotograma</translation>
    </message>
    <message>
        <source>All files are presented at exactly this rate.
The timestamp stored in the files is used to verify sync, not to pace playback.</source>
        <translation>Todos los archivos se presentan exactamente a esta velocidad.
La marca de tiempo guardada en los archivos sirve para verificar la sincronía, no para marcar el ritmo de la reproducción.</translation>
    </message>
    <message>
        <source>Loop the whole set (1 -&gt; end -&gt; 1)</source>
        <translation>Repetir en bucle todo el conjunto (1 -&gt; fin -&gt; 1)</translation>
    </message>
    <message>
        <source>Play the set end to end, over and over.
Every file wraps on the same frame, so a set that drifts shows it within a few passes.</source>
        <translation>Reproduce el conjunto de principio a fin, una y otra vez.
Todos los archivos vuelven al inicio en el mismo fotograma, así que un conjunto que se desfasa lo muestra en pocas pasadas.</translation>
    </message>
    <message>
        <source>Set loaded: %1 recording(s), %2 frames each.</source>
        <translation>Conjunto cargado: %1 grabación(es), %2 fotogramas cada una.</translation>
    </message>
    <message>
        <source>No set loaded.</source>
        <translation>No hay ningún conjunto cargado.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Fotograma %1 / %2</translation>
    </message>
    <message>
        <source>%1 file(s) driven together</source>
        <translation>%1 archivo(s) controlados a la vez</translation>
    </message>
    <message>
        <source>timestamps in step</source>
        <translation>marcas de tiempo sincronizadas</translation>
    </message>
    <message>
        <source>timestamps %1 s apart</source>
        <translation>marcas de tiempo separadas %1 s</translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation>Carpeta que contiene las grabaciones GPS-Sync</translation>
    </message>
</context>
<context>
    <name>GroupFilterPanel</name>
    <message>
        <source>Groups &amp; Universes</source>
        <translation>Grupos &amp; universos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Port addr.</source>
        <translation>Port-Addr.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Ocultar todo</translation>
    </message>
    <message>
        <source>Z Layer</source>
        <translation>Capa Z</translation>
    </message>
    <message>
        <source>Z </source>
        <translation>Z </translation>
    </message>
    <message>
        <source>Only pixels on this Z layer are drawn.</source>
        <translation>Solo se dibujan los píxeles de esta capa Z.</translation>
    </message>
    <message>
        <source>All Z</source>
        <translation>Todas las Z</translation>
    </message>
    <message>
        <source>Draw every Z layer at once. Layers overlap in 2D, so this is a quick look rather than an inspection view.</source>
        <translation>Dibuja todas las capas Z a la vez. Las capas se superponen en 2D, así que es un vistazo rápido más que una vista de inspección.</translation>
    </message>
    <message>
        <source>Universe %1</source>
        <translation>Universo %1</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>Net %1 / SubNet %2 / Universe %3
Target IP %4
Select to highlight this universe on the monitor.</source>
        <translation>Net %1 / SubNet %2 / Universe %3
IP de destino %4
Selecciónelo para resaltar este universo en el monitor.</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Single layer (Z %1).</source>
        <translation>Una sola capa (Z %1).</translation>
    </message>
    <message>
        <source>Layers %1 - %2. Only the selected layer is drawn.</source>
        <translation>Capas %1 - %2. Solo se dibuja la capa seleccionada.</translation>
    </message>
</context>
<context>
    <name>Health</name>
    <message>
        <source>ArtDmx packets received for this universe.</source>
        <translation>Paquetes ArtDmx recibidos para este universo.</translation>
    </message>
    <message>
        <source>Packets per second: over the last second live, over the whole file otherwise.</source>
        <translation>Paquetes por segundo: en directo, durante el último segundo; si no, sobre todo el archivo.</translation>
    </message>
    <message>
        <source>Sequence numbers skipped by forward jumps (shorter than half the 1-255 cycle, across the wrap from 255 to 1), less those that arrived late: a swapped pair loses nothing.</source>
        <translation>Números de secuencia omitidos por saltos hacia delante (más cortos que la mitad del ciclo 1-255, también al pasar de 255 a 1), menos los que llegaron tarde: un par intercambiado no pierde nada.</translation>
    </message>
    <message>
        <source>Packets that arrived behind the highest sequence number seen so far (a backward step shorter than half the cycle).</source>
        <translation>Paquetes que llegaron por detrás del número de secuencia más alto visto hasta ahora (un retroceso más corto que la mitad del ciclo).</translation>
    </message>
    <message>
        <source>Packets repeating the highest sequence number seen so far.</source>
        <translation>Paquetes que repiten el número de secuencia más alto visto hasta ahora.</translation>
    </message>
    <message>
        <source>Times the data length changed from one packet to the next.</source>
        <translation>Veces que la longitud de los datos cambió de un paquete al siguiente.</translation>
    </message>
    <message>
        <source>Milliseconds since the last packet.</source>
        <translation>Milisegundos desde el último paquete.</translation>
    </message>
    <message>
        <source>The shortest, median and longest time between two packets, in ms (the median of the latest 64).</source>
        <translation>El tiempo más corto, la mediana y el tiempo más largo entre dos paquetes, en ms (la mediana de los últimos 64).</translation>
    </message>
    <message>
        <source>ArtSync periods in which the universe came twice or not at all (a torn frame).</source>
        <translation>Periodos de ArtSync en los que el universo llegó dos veces o ninguna (un fotograma partido).</translation>
    </message>
    <message>
        <source>never: patched, nothing received; stale: nothing for more than 4 s; conflict: two or more senders; unstable: over 1 % of packets lost, out of order or repeated, or a longest interval over 4 times the median and over 100 ms; ok: none of these.</source>
        <translation>nunca: en el patch, no se ha recibido nada; obsoleto: nada durante más de 4 s; conflicto: dos o más fuentes; inestable: más del 1 % de los paquetes perdidos, desordenados o repetidos, o un intervalo más largo que supera 4 veces la mediana y los 100 ms; ok: nada de lo anterior.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>No se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>stale</source>
        <translation>obsoleto</translation>
    </message>
    <message>
        <source>conflict</source>
        <translation>conflicto</translation>
    </message>
    <message>
        <source>unstable</source>
        <translation>inestable</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>never received</source>
        <translation>nunca recibido</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n sender(s) · %2 fps · lost %3 · out of order %4 · duplicates %5 · last %6 s ago</source>
        <translation>
            <numerusform>%1 · %n fuente · %2 fps · perdidos %3 · desordenados %4 · duplicados %5 · último hace %6 s</numerusform>
            <numerusform>%1 · %n fuentes · %2 fps · perdidos %3 · desordenados %4 · duplicados %5 · último hace %6 s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin.</source>
        <translation>Listo. Cargue un patch (.tpatch, MADRIX .mpz o ELM .elm) para empezar.</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot</source>
        <translation>Guardar captura del monitor</translation>
    </message>
    <message>
        <source>PNG Image (*.png)</source>
        <translation>Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>Snapshot Failed</source>
        <translation>Error en la captura</translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation>No se pudo escribir %1.</translation>
    </message>
    <message>
        <source>Snapshot saved to %1</source>
        <translation>Captura guardada en %1</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Recorded playback</source>
        <translation>Reproducción de grabación</translation>
    </message>
    <message>
        <source>Play a .tpx recording. A patch is optional: without one the monitor stays dark and the DMX tab shows the data.</source>
        <translation>Reproduce una grabación .tpx. El patch es opcional: sin él, el monitor permanece a oscuras y la pestaña DMX muestra los datos.</translation>
    </message>
    <message>
        <source>Live broadcast</source>
        <translation>Emisión en directo</translation>
    </message>
    <message>
        <source>Act as an Art-Net node and paint the monitor from live DMX.</source>
        <translation>Actúa como nodo Art-Net y pinta el monitor con DMX en directo.</translation>
    </message>
    <message>
        <source>Standard Art-Net</source>
        <translation>Art-Net estándar</translation>
    </message>
    <message>
        <source>One .tpx file recorded for the whole patch.</source>
        <translation>Un único archivo .tpx grabado para todo el patch.</translation>
    </message>
    <message>
        <source>GPS Mirra</source>
        <translation>GPS Mirra</translation>
    </message>
    <message>
        <source>One .tpx file per group, recorded with GPS Sync Compatible Record.
All of them are driven from a single clock, frame n at the same instant.</source>
        <translation>Un archivo .tpx por grupo, grabado con GPS Sync Compatible Record.
Todos se controlan desde un único reloj: el fotograma n en el mismo instante.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
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
        <translation>Ajustar a la vista</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Save the current monitor image as a PNG file</source>
        <translation>Guardar la imagen actual del monitor como archivo PNG</translation>
    </message>
    <message>
        <source>White channels</source>
        <translation>Canales blancos</translation>
    </message>
    <message>
        <source>Add W / CW / WW channel values to the pixel colour.

Off by default: MOX derives the white channels FROM rgb, so there is no single correct way back. This is a visibility aid - without it, white-only fixtures stay black even while they are receiving data.</source>
        <translation>Suma los valores de los canales W / CW / WW al color del píxel.

Desactivado por defecto: MOX deriva los canales blancos A PARTIR del RGB, así que no hay una única forma correcta de hacer el camino inverso. Es una ayuda de visibilidad: sin ella, los aparatos solo blancos se quedan en negro aunque estén recibiendo datos.</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Ejes</translation>
    </message>
    <message>
        <source>Show the red / green / blue X-Y-Z arrows at the origin.</source>
        <translation>Muestra las flechas X-Y-Z roja / verde / azul en el origen.</translation>
    </message>
    <message>
        <source>Fast draw</source>
        <translation>Dibujo rápido</translation>
    </message>
    <message>
        <source>Draw LEDs as squares without antialiasing.

Roughly 5x faster on large patches - use it when the 3D view cannot keep up with playback. Pixels look square instead of round.</source>
        <translation>Dibuja los LED como cuadrados sin antialiasing.

Aproximadamente 5 veces más rápido en patches grandes: úselo cuando la vista 3D no pueda seguir el ritmo de la reproducción. Los píxeles se ven cuadrados en lugar de redondos.</translation>
    </message>
    <message>
        <source>Auto orbit</source>
        <translation>Órbita automática</translation>
    </message>
    <message>
        <source>Swing the model through +-45 degrees on two axes.
Touching the view with the mouse stops it.</source>
        <translation>Hace oscilar el modelo +-45 grados en dos ejes.
Tocar la vista con el ratón lo detiene.</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frontal</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Back to the default angle and distance</source>
        <translation>Volver al ángulo y la distancia predeterminados</translation>
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
        <translation>Carpeta que contiene las grabaciones GPS-Sync</translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation>Cargue primero un patch: la lista de grupos sale de él.</translation>
    </message>
    <message>
        <source>No file in &quot;%1&quot; matches a group name. GPS-Sync recordings are named &lt;name&gt;_&lt;Group&gt;.tpx.</source>
        <translation>Ningún archivo de &quot;%1&quot; coincide con un nombre de grupo. Las grabaciones GPS-Sync se llaman &lt;name&gt;_&lt;Group&gt;.tpx.</translation>
    </message>
    <message>
        <source>Matched all %1 group(s). Press Load set to verify them.</source>
        <translation>Se han emparejado los %1 grupo(s). Pulse Cargar conjunto para verificarlos.</translation>
    </message>
    <message>
        <source>Matched %1 of %2 group(s). Fill the rest by hand, then press Load set.</source>
        <translation>Emparejados %1 de %2 grupo(s). Complete el resto a mano y luego pulse Cargar conjunto.</translation>
    </message>
    <message>
        <source>The file list changed - press Load set to verify it again.</source>
        <translation>La lista de archivos ha cambiado: pulse Cargar conjunto para verificarla de nuevo.</translation>
    </message>
    <message>
        <source>Load a patch first - a GPS-Sync set is one recording per group, and the group list comes from the patch.</source>
        <translation>Cargue primero un patch: un conjunto GPS-Sync es una grabación por grupo, y la lista de grupos sale del patch.</translation>
    </message>
    <message>
        <source>GPS Mirra set: %1 recording(s), %2 frames each.</source>
        <translation>Conjunto GPS Mirra: %1 grabación(es), %2 fotogramas cada una.</translation>
    </message>
    <message>
        <source>Could not listen on %1:%2 - %3</source>
        <translation>No se pudo escuchar en %1:%2 - %3</translation>
    </message>
    <message>
        <source>Art-Net node active on %1.</source>
        <translation>Nodo Art-Net activo en %1.</translation>
    </message>
    <message>
        <source>Listening on %1:%2, advertising %3 universe(s).</source>
        <translation>Escuchando en %1:%2, anunciando %3 universo(s).</translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation>No se está escuchando.</translation>
    </message>
    <message>
        <source>Start listening first - there is no node to announce.</source>
        <translation>Empiece primero a escuchar: no hay ningún nodo que anunciar.</translation>
    </message>
    <message>
        <source>ArtPollReply broadcast.</source>
        <translation>ArtPollReply difundido.</translation>
    </message>
    <message>
        <source>Stop listening first - the address cannot change while the node is running.</source>
        <translation>Deje primero de escuchar: la dirección no puede cambiar mientras el nodo está en marcha.</translation>
    </message>
    <message>
        <source>Network interfaces refreshed.</source>
        <translation>Interfaces de red actualizadas.</translation>
    </message>
    <message>
        <source>Start listening first - there is nothing to record yet.</source>
        <translation>Empiece primero a escuchar: todavía no hay nada que grabar.</translation>
    </message>
    <message>
        <source>Pick a folder and a file name first.</source>
        <translation>Elija primero una carpeta y un nombre de archivo.</translation>
    </message>
    <message>
        <source>Could not write %1 - %2</source>
        <translation>No se pudo escribir %1 - %2</translation>
    </message>
    <message>
        <source>Appending to %1 (%2 KB already in the file).</source>
        <translation>Añadiendo a %1 (%2 KB ya en el archivo).</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>Grabando en %1</translation>
    </message>
    <message>
        <source>Saved %1 frame(s), %2 record(s), %3 KB to %4</source>
        <translation>Guardados %1 fotograma(s), %2 registro(s), %3 KB en %4</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <translation>Grabación detenida: %1</translation>
    </message>
    <message>
        <source>Planned for a future version.</source>
        <translation>Previsto para una versión futura.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Open Patch...</source>
        <translation>Abrir patch...</translation>
    </message>
    <message>
        <source>Open Recording...</source>
        <translation>Abrir grabación...</translation>
    </message>
    <message>
        <source>Open GPS-Sync Set Folder...</source>
        <translation>Abrir carpeta de conjunto GPS-Sync...</translation>
    </message>
    <message>
        <source>Match every group of the loaded patch with its &lt;name&gt;_&lt;Group&gt;.tpx file in a folder.</source>
        <translation>Empareja cada grupo del patch cargado con su archivo &lt;name&gt;_&lt;Group&gt;.tpx de una carpeta.</translation>
    </message>
    <message>
        <source>Recent Patches</source>
        <translation>Patches recientes</translation>
    </message>
    <message>
        <source>Recent Recordings</source>
        <translation>Grabaciones recientes</translation>
    </message>
    <message>
        <source>Open Network Log...</source>
        <translation>Abrir registro de red...</translation>
    </message>
    <message>
        <source>Save Network Log</source>
        <translation>Guardar registro de red</translation>
    </message>
    <message>
        <source>Save Network Log As...</source>
        <translation>Guardar registro de red como...</translation>
    </message>
    <message>
        <source>Save Monitor Snapshot...</source>
        <translation>Guardar captura del monitor...</translation>
    </message>
    <message>
        <source>Export Patch Report...</source>
        <translation>Exportar informe del patch...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>Network Log...</source>
        <translation>Registro de red...</translation>
    </message>
    <message>
        <source>Copy Monitor Image</source>
        <translation>Copiar imagen del monitor</translation>
    </message>
    <message>
        <source>Interface Theme...</source>
        <translation>Tema de la interfaz...</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferencias...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>2D Monitor</source>
        <translation>Monitor 2D</translation>
    </message>
    <message>
        <source>3D Monitor</source>
        <translation>Monitor 3D</translation>
    </message>
    <message>
        <source>Fit to View</source>
        <translation>Ajustar a la vista</translation>
    </message>
    <message>
        <source>3D Camera</source>
        <translation>Cámara 3D</translation>
    </message>
    <message>
        <source>Reset Camera</source>
        <translation>Restablecer cámara</translation>
    </message>
    <message>
        <source>Show Axes</source>
        <translation>Mostrar ejes</translation>
    </message>
    <message>
        <source>Fast Draw</source>
        <translation>Dibujo rápido</translation>
    </message>
    <message>
        <source>Auto Orbit</source>
        <translation>Órbita automática</translation>
    </message>
    <message>
        <source>White Channels</source>
        <translation>Canales blancos</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation>Reproducir / Pausa</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Go to Frame...</source>
        <translation>Ir al fotograma...</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Bucle</translation>
    </message>
    <message>
        <source>GPS Mirra Set</source>
        <translation>Conjunto GPS Mirra</translation>
    </message>
    <message>
        <source>&amp;Broadcast</source>
        <translation>E&amp;misión</translation>
    </message>
    <message>
        <source>Listen for Art-Net</source>
        <translation>Escuchar Art-Net</translation>
    </message>
    <message>
        <source>Record Incoming Stream</source>
        <translation>Grabar flujo entrante</translation>
    </message>
    <message>
        <source>Announce Node Now</source>
        <translation>Anunciar nodo ahora</translation>
    </message>
    <message>
        <source>Broadcast an ArtPollReply immediately instead of waiting for the next poll.</source>
        <translation>Difunde un ArtPollReply de inmediato en lugar de esperar al siguiente ArtPoll.</translation>
    </message>
    <message>
        <source>Refresh Network Interfaces</source>
        <translation>Actualizar interfaces de red</translation>
    </message>
    <message>
        <source>Node Discovery (ArtPoll Scan)...</source>
        <translation>Descubrimiento de nodos (sondeo ArtPoll)...</translation>
    </message>
    <message>
        <source>Test Signal Generator...</source>
        <translation>Generador de señal de prueba...</translation>
    </message>
    <message>
        <source>sACN (E1.31) Input</source>
        <translation>Entrada sACN (E1.31)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Language...</source>
        <translation>Idioma...</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Open Logs Folder</source>
        <translation>Abrir carpeta de registros</translation>
    </message>
    <message>
        <source>Patches that produced import warnings are kept here together with the messages.</source>
        <translation>Aquí se guardan los patches que produjeron advertencias de importación, junto con los mensajes.</translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation>Manual de usuario</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>Buscar actualizaciones...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Borrar lista</translation>
    </message>
    <message>
        <source>Open Patch</source>
        <translation>Abrir patch</translation>
    </message>
    <message>
        <source>Patches (*.tpatch *.mpz *.elm *.elmbackup);;All files (*)</source>
        <translation>Patches (*.tpatch *.mpz *.elm *.elmbackup);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Abrir grabación</translation>
    </message>
    <message>
        <source>Playback paused.</source>
        <translation>Reproducción en pausa.</translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation>Ir al fotograma</translation>
    </message>
    <message>
        <source>Frame (0 - %1):</source>
        <translation>Fotograma (0 - %1):</translation>
    </message>
    <message>
        <source>Monitor image copied to the clipboard.</source>
        <translation>Imagen del monitor copiada al portapapeles.</translation>
    </message>
    <message>
        <source>Interface theme: %1</source>
        <translation>Tema de la interfaz: %1</translation>
    </message>
    <message>
        <source>Interface Theme</source>
        <translation>Tema de la interfaz</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>There is no writable logs folder.</source>
        <translation>No hay ninguna carpeta de registros con permiso de escritura.</translation>
    </message>
    <message>
        <source>Logs folder: %1</source>
        <translation>Carpeta de registros: %1</translation>
    </message>
    <message>
        <source>About Torvane TALU</source>
        <translation>Acerca de Torvane TALU</translation>
    </message>
    <message>
        <source>See what an LED installation shows for a stream of Art-Net DMX data.</source>
        <translation>Vea lo que muestra una instalación LED para un flujo de datos DMX Art-Net.</translation>
    </message>
    <message>
        <source>Version %1, built %2.</source>
        <translation>Versión %1, compilada el %2.</translation>
    </message>
    <message>
        <source>Running on Qt %1.</source>
        <translation>Se ejecuta sobre Qt %1.</translation>
    </message>
    <message>
        <source>This program uses:</source>
        <translation>Este programa usa:</translation>
    </message>
    <message>
        <source>Qt %1 (The Qt Company), under the GNU Lesser General Public License version 3.</source>
        <translation>Qt %1 (The Qt Company), bajo la GNU Lesser General Public License versión 3.</translation>
    </message>
    <message>
        <source>zlib (Jean-loup Gailly and Mark Adler), under the zlib licence.</source>
        <translation>zlib (Jean-loup Gailly y Mark Adler), bajo la licencia zlib.</translation>
    </message>
    <message>
        <source>Torvane TALU is © 2026 Torvane. All rights reserved.</source>
        <translation>Torvane TALU es © 2026 Torvane. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Acerca de Qt</translation>
    </message>
    <message>
        <source>no writable logs folder</source>
        <translation>no hay carpeta de registros con permiso de escritura</translation>
    </message>
    <message>
        <source>Patch could not be loaded.</source>
        <translation>No se pudo cargar el patch.</translation>
    </message>
    <message>
        <source>A copy of the file and this message was saved to:
%1</source>
        <translation>Se guardó una copia del archivo y de este mensaje en:
%1</translation>
    </message>
    <message>
        <source>Patch Error</source>
        <translation>Error de patch</translation>
    </message>
    <message>
        <source>No recording loaded.</source>
        <translation>No hay ninguna grabación cargada.</translation>
    </message>
    <message>
        <source>This patch has no groups.</source>
        <translation>Este patch no tiene grupos.</translation>
    </message>
    <message>
        <source>No set loaded. Give every group its own GPS-Sync recording.</source>
        <translation>No hay ningún conjunto cargado. Asigne a cada grupo su propia grabación GPS-Sync.</translation>
    </message>
    <message>
        <source>Patch loaded but contains no drawable pixels. Check that the patch was saved from the Patch Editor with its layout.</source>
        <translation>Patch cargado, pero no contiene píxeles dibujables. Compruebe que el patch se guardó desde el Patch Editor con su disposición.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms.</source>
        <translation>Cargado %1 en %2 ms.</translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms with %3 warning(s) - see the Patch tab.</source>
        <translation>Cargado %1 en %2 ms con %3 advertencia(s): consulte la pestaña Patch.</translation>
    </message>
    <message>
        <source>%1 pixels drawn.</source>
        <translation>%1 píxeles dibujados.</translation>
    </message>
    <message>
        <source>A copy of the patch and its warnings is in %1</source>
        <translation>Hay una copia del patch y sus advertencias en %1</translation>
    </message>
    <message>
        <source>There is no set to play. Fill in the group recordings and press Load set first.</source>
        <translation>No hay ningún conjunto que reproducir. Rellene las grabaciones de los grupos y pulse antes Cargar conjunto.</translation>
    </message>
    <message>
        <source>There is no recording to play. Load a .tpx file first.</source>
        <translation>No hay ninguna grabación que reproducir. Cargue primero un archivo .tpx.</translation>
    </message>
    <message>
        <source>Nothing to play - no recording is loaded.</source>
        <translation>Nada que reproducir: no hay ninguna grabación cargada.</translation>
    </message>
    <message>
        <source>Playback controls work in Recorded playback mode.</source>
        <translation>Los controles de reproducción funcionan en el modo Reproducción de grabación.</translation>
    </message>
    <message>
        <source>Playing %1 recording(s) in step.</source>
        <translation>Reproduciendo %1 grabación(es) sincronizadas.</translation>
    </message>
    <message>
        <source>Playing.</source>
        <translation>Reproduciendo.</translation>
    </message>
    <message>
        <source>Reached the end of the recording.</source>
        <translation>Se ha llegado al final de la grabación.</translation>
    </message>
    <message>
        <source>Rewound to the first frame.</source>
        <translation>Rebobinado al primer fotograma.</translation>
    </message>
    <message>
        <source>%1 frames at %2 fps = %3 s</source>
        <translation>%1 fotogramas a %2 fps = %3 s</translation>
    </message>
    <message>
        <source>This machine is not sustaining %1 fps (about %2 fps measured). Playback continues and drops frames to stay in real time; lower the fps yourself if you want every frame shown.</source>
        <translation>Este equipo no mantiene %1 fps (se han medido unos %2 fps). La reproducción continúa y descarta fotogramas para seguir en tiempo real; baje usted mismo los fps si quiere ver todos los fotogramas.</translation>
    </message>
    <message>
        <source>Sustaining about %1 fps.</source>
        <translation>Manteniendo unos %1 fps.</translation>
    </message>
    <message>
        <source>GPS Mirra: one recording per group, all driven from one clock.</source>
        <translation>GPS Mirra: una grabación por grupo, todas controladas por un mismo reloj.</translation>
    </message>
    <message>
        <source>Standard Art-Net: a single recording drives the whole patch.</source>
        <translation>Art-Net estándar: una única grabación controla todo el patch.</translation>
    </message>
    <message>
        <source>Enter a .tpx path or pick one with the ... button.</source>
        <translation>Introduzca la ruta de un .tpx o elija uno con el botón &quot;...&quot;.</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 frames · %4 s at %5 fps</source>
        <translation>%1 · %2 · %3 fotogramas · %4 s a %5 fps</translation>
    </message>
    <message>
        <source>No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe.</source>
        <translation>No hay ningún patch cargado: el monitor permanece a oscuras; la pestaña DMX muestra todos los universos grabados.</translation>
    </message>
    <message>
        <source>Space plays and pauses.</source>
        <translation>La barra espaciadora reproduce y pausa.</translation>
    </message>
    <message>
        <source>White channel contribution off.</source>
        <translation>Aporte de los canales blancos desactivado.</translation>
    </message>
    <message>
        <source>This patch has no W / CW / WW channels - white contribution has nothing to add.</source>
        <translation>Este patch no tiene canales W / CW / WW: el aporte de blanco no tiene nada que sumar.</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px con blanco (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>peak white value %1 - contribution applied.</source>
        <translation>valor máximo de blanco %1: aporte aplicado.</translation>
    </message>
    <message>
        <source>but every white value received so far is 0. MOX writes 0 to these channels unless White Channel is configured in the project.</source>
        <translation>pero todos los valores de blanco recibidos hasta ahora son 0. MOX escribe 0 en estos canales salvo que White Channel esté configurado en el proyecto.</translation>
    </message>
    <message>
        <source>%1 / %2 · port 0x%3 · channel %4 · Z %5 · rgb(%6, %7, %8)</source>
        <translation>%1 / %2 · puerto 0x%3 · canal %4 · Z %5 · rgb(%6, %7, %8)</translation>
    </message>
    <message>
        <source>The system gives this node a receive queue of only %1 KB (%2 KB asked for): a burst the program cannot read at once is lost. Raise the limit (net.core.rmem_max on Linux).</source>
        <translation>El sistema solo concede a este nodo una cola de recepción de %1 KB (se pidieron %2 KB): una ráfaga que el programa no pueda leer de inmediato se pierde. Aumente el límite (net.core.rmem_max en Linux).</translation>
    </message>
    <message>
        <source>The window shows each theme as you select it.</source>
        <translation>La ventana muestra cada tema en cuanto lo selecciona.</translation>
    </message>
    <message>
        <source>Network log (*.tlog)</source>
        <translation>Registro de red (*.tlog)</translation>
    </message>
    <message>
        <source>Wireshark capture (*.pcapng)</source>
        <translation>Captura de Wireshark (*.pcapng)</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>Tabla CSV (*.csv)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>Open Network Log</source>
        <translation>Abrir registro de red</translation>
    </message>
    <message>
        <source>Network logs and captures (*.tlog *.pcapng *.pcap);;All files (*)</source>
        <translation>Registros de red y capturas (*.tlog *.pcapng *.pcap);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Network log not opened: %1</source>
        <translation>No se pudo abrir el registro de red: %1</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Registro de red</translation>
    </message>
    <message>
        <source>Opened %1: %2 records.</source>
        <translation>Abierto %1: %2 entradas.</translation>
    </message>
    <message>
        <source>Save Network Log As</source>
        <translation>Guardar registro de red como</translation>
    </message>
    <message>
        <source>The filter shows %1 of %2 records. Save only the records it shows?</source>
        <translation>El filtro muestra %1 de %2 entradas. ¿Guardar solo las entradas que muestra?</translation>
    </message>
    <message>
        <source>Could not write %1: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>Network log saved to %1 (%2 records).</source>
        <translation>Registro de red guardado en %1 (%2 entradas).</translation>
    </message>
    <message>
        <source>See every packet this node receives and sends.</source>
        <translation>Muestra cada paquete que este nodo recibe y envía.</translation>
    </message>
    <message>
        <source>Capturing on %1.</source>
        <translation>Capturando en %1.</translation>
    </message>
    <message>
        <source>Starting the capture on %1...</source>
        <translation>Iniciando la captura en %1...</translation>
    </message>
    <message>
        <source>Capture on %1 stopped: %2 packets, %3 dropped by the system.</source>
        <translation>Captura en %1 detenida: %2 paquetes, %3 descartados por el sistema.</translation>
    </message>
    <message>
        <source>How to load a patch, play, go live, record, log and capture.</source>
        <translation>Cómo cargar un patch, reproducir, pasar a directo, grabar, registrar y capturar.</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All files (*)</source>
        <translation>Grabaciones y capturas (*.tpx *.pcapng *.pcap);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>libpcap (The Tcpdump Group), in the capture helper, under the BSD licence.</source>
        <translation>libpcap (The Tcpdump Group), en el programa auxiliar de captura, bajo la licencia BSD.</translation>
    </message>
    <message>
        <source>The capture could not be read: %1</source>
        <translation>No se pudo leer la captura: %1</translation>
    </message>
    <message>
        <source>capture of %1 ArtDmx packets, as %2</source>
        <translation>captura de %1 paquetes ArtDmx, en formato %2</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>%1 (subnet of %2, %3)</source>
        <translation>%1 (subred de %2, %3)</translation>
    </message>
    <message>
        <source>255.255.255.255 (limited broadcast)</source>
        <translation>255.255.255.255 (difusión limitada)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv4 address.</source>
        <translation>&quot;%1&quot; no es una dirección IPv4.</translation>
    </message>
    <message>
        <source>Cannot scan: %1</source>
        <translation>No se puede sondear: %1</translation>
    </message>
    <message>
        <source>Polling %1 every 2.5 s...</source>
        <translation>Sondeando %1 cada 2,5 s...</translation>
    </message>
    <message>
        <source>Export Devices</source>
        <translation>Exportar dispositivos</translation>
    </message>
    <message>
        <source>Devices exported to %1.</source>
        <translation>Dispositivos exportados a %1.</translation>
    </message>
    <message>
        <source>List the Art-Net nodes on the network and what is wrong with their replies.</source>
        <translation>Lista los nodos Art-Net de la red y lo que falla en sus respuestas.</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe: ok, unstable, conflict (several senders), stale (nothing for 4 s) or never received. Hover a fixture for its universe&apos;s figures.</source>
        <translation>Pinta cada aparato con el color de salud de su universo: ok, inestable, conflicto (varias fuentes), obsoleto (nada durante 4 s) o nunca recibido. Pase el ratón sobre un aparato para ver las cifras de su universo.</translation>
    </message>
    <message>
        <source>A GPS-Sync set is not analysed: the table follows the live node or a Standard Art-Net recording.</source>
        <translation>Un conjunto GPS-Sync no se analiza: la tabla sigue al nodo en directo o a una grabación Art-Net estándar.</translation>
    </message>
    <message>
        <source>No recording loaded: open a recording or a capture, or listen live.</source>
        <translation>No hay ninguna grabación cargada: abra una grabación o una captura, o escuche en directo.</translation>
    </message>
    <message>
        <source>Capture %1, over the whole file.</source>
        <translation>Captura %1, sobre todo el archivo.</translation>
    </message>
    <message>
        <source>Recording %1 at %2 fps, over the whole file (a recording keeps no senders or sequence numbers).</source>
        <translation>Grabación %1 a %2 fps, sobre todo el archivo (una grabación no guarda fuentes ni números de secuencia).</translation>
    </message>
    <message>
        <source>Capture %1 could not be read: %2</source>
        <translation>No se pudo leer la captura %1: %2</translation>
    </message>
    <message>
        <source>Live: the node on %1:%2, fps over the last second.</source>
        <translation>En directo: el nodo en %1:%2, fps durante el último segundo.</translation>
    </message>
    <message>
        <source>Live: the node is not listening.</source>
        <translation>En directo: el nodo no está escuchando.</translation>
    </message>
    <message>
        <source>Export Universe Health</source>
        <translation>Exportar salud de universos</translation>
    </message>
    <message>
        <source>Universe health exported to %1.</source>
        <translation>Salud de universos exportada a %1.</translation>
    </message>
    <message>
        <source>Health Overlay</source>
        <translation>Capa de salud</translation>
    </message>
    <message>
        <source>Paint every fixture in the health colour of its universe.</source>
        <translation>Pinta cada aparato con el color de salud de su universo.</translation>
    </message>
    <message>
        <source>Universe Health...</source>
        <translation>Salud de universos...</translation>
    </message>
    <message>
        <source>Per universe and sender: rate, lost and late packets, conflicts, ArtSync.</source>
        <translation>Por universo y fuente: tasa, paquetes perdidos y tardíos, conflictos, ArtSync.</translation>
    </message>
</context>
<context>
    <name>MoxStyle</name>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Alto contraste</translation>
    </message>
    <message>
        <source>Dim red</source>
        <translation>Rojo atenuado</translation>
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
        <translation>este programa</translation>
    </message>
    <message>
        <source>online</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>desconectado</translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n problema</numerusform>
            <numerusform>%n problemas</numerusform>
        </translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Informe: %1</translation>
    </message>
    <message>
        <source>Finding: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>Node Discovery</source>
        <translation>Descubrimiento de nodos</translation>
    </message>
    <message>
        <source>Poll:</source>
        <translation>Sondear:</translation>
    </message>
    <message>
        <source>Poll target</source>
        <translation>Destino del sondeo</translation>
    </message>
    <message>
        <source>Where ArtPoll goes: an interface&apos;s subnet broadcast, the limited broadcast, or one address typed in.</source>
        <translation>Adónde va el ArtPoll: la difusión de subred de una interfaz, la difusión limitada o una dirección introducida.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Sondear</translation>
    </message>
    <message>
        <source>Send ArtPoll now and every 2.5 s while this window is open.</source>
        <translation>Envía un ArtPoll ahora y cada 2,5 s mientras esta ventana esté abierta.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exportar CSV...</translation>
    </message>
    <message>
        <source>Scan state</source>
        <translation>Estado del sondeo</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Short name</source>
        <translation>Nombre corto</translation>
    </message>
    <message>
        <source>Long name</source>
        <translation>Nombre largo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Reply</source>
        <translation>Respuesta</translation>
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
        <translation>Puertos</translation>
    </message>
    <message>
        <source>Patched universes without a device</source>
        <translation>Universos del patch sin dispositivo</translation>
    </message>
    <message>
        <source>Load a patch to see which of its universes no device outputs.</source>
        <translation>Cargue un patch para ver cuáles de sus universos no emite ningún dispositivo.</translation>
    </message>
    <message>
        <source>Every patched universe has a device that outputs it.</source>
        <translation>Cada universo del patch tiene un dispositivo que lo emite.</translation>
    </message>
    <message>
        <source>Patched universes no device outputs: %1</source>
        <translation>Universos del patch que ningún dispositivo emite: %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estatus</translation>
    </message>
</context>
<context>
    <name>PacketListModel</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Dir</source>
        <translation>Dir.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>OpCode</source>
        <translation>OpCode</translation>
    </message>
    <message>
        <source>Universe</source>
        <translation>Universo</translation>
    </message>
    <message>
        <source>Seq</source>
        <translation>Sec.</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>out</source>
        <translation>salida</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrada</translation>
    </message>
</context>
<context>
    <name>PacketLog</name>
    <message>
        <source>The capture is cut short in packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>La captura está cortada en el paquete %1 (en el byte %2); se leyeron los %3 paquetes anteriores.</translation>
    </message>
    <message>
        <source>The capture is damaged at packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation>La captura está dañada en el paquete %1 (en el byte %2); se leyeron los %3 paquetes anteriores.</translation>
    </message>
    <message>
        <source>%1 packets were not UDP over IPv4 and were left out.</source>
        <translation>%1 paquetes no eran UDP sobre IPv4 y se omitieron.</translation>
    </message>
    <message>
        <source>This is not a pcap capture file.</source>
        <translation>Este no es un archivo de captura pcap.</translation>
    </message>
    <message>
        <source>This is not a pcapng capture file.</source>
        <translation>Este no es un archivo de captura pcapng.</translation>
    </message>
    <message>
        <source>Unexpected end of filter.</source>
        <translation>Final inesperado del filtro.</translation>
    </message>
    <message>
        <source>Missing &apos;)&apos;.</source>
        <translation>Falta &apos;)&apos;.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta un valor después de &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unexpected token: %1</source>
        <translation>Símbolo inesperado: %1</translation>
    </message>
    <message>
        <source>The filter is nested too deeply (more than %1 levels of &apos;!&apos; and &apos;(&apos;).</source>
        <translation>El filtro está anidado a demasiada profundidad (más de %1 niveles de &apos;!&apos; y &apos;(&apos;).</translation>
    </message>
    <message>
        <source>source or destination</source>
        <translation>origen o destino</translation>
    </message>
    <message>
        <source>This is neither a packet log (.tlog) nor a pcapng or pcap capture.</source>
        <translation>Esto no es ni un registro de paquetes (.tlog) ni una captura pcapng o pcap.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>No se puede abrir %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Cannot write the packet log %1: %2</source>
        <translation>No se puede escribir el registro de paquetes %1: %2</translation>
    </message>
    <message>
        <source>SEND FAILED</source>
        <translation>ENVÍO FALLIDO</translation>
    </message>
    <message>
        <source>NOT SENT</source>
        <translation>NO ENVIADO</translation>
    </message>
    <message>
        <source>PARTIAL WRITE</source>
        <translation>ESCRITURA PARCIAL</translation>
    </message>
    <message>
        <source>device offline (no ArtPollReply within the liveness window)</source>
        <translation>dispositivo desconectado (ningún ArtPollReply dentro de la ventana de actividad)</translation>
    </message>
    <message>
        <source>output is closed (udpTransferOpen = false)</source>
        <translation>la salida está cerrada (udpTransferOpen = false)</translation>
    </message>
    <message>
        <source>Device Manager test broadcast is active</source>
        <translation>la difusión de prueba del Device Manager está activa</translation>
    </message>
    <message>
        <source>socket unavailable (adapter is being switched)</source>
        <translation>socket no disponible (se está cambiando de adaptador)</translation>
    </message>
    <message>
        <source>target address could not be resolved</source>
        <translation>no se pudo resolver la dirección de destino</translation>
    </message>
    <message>
        <source>Access denied. A broadcast address was used on a socket that does not have SO_BROADCAST enabled.</source>
        <translation>Acceso denegado. Se usó una dirección de broadcast en un socket que no tiene SO_BROADCAST activado.</translation>
    </message>
    <message>
        <source>The datagram is larger than the maximum the transport supports. Check the channel count and the interface MTU.</source>
        <translation>El datagrama supera el tamaño máximo que admite el transporte. Compruebe el número de canales y la MTU de la interfaz.</translation>
    </message>
    <message>
        <source>The requested address is not valid in this context. The adapter may have lost its IP address.</source>
        <translation>La dirección solicitada no es válida en este contexto. Puede que el adaptador haya perdido su dirección IP.</translation>
    </message>
    <message>
        <source>The network is down. The adapter is disconnected or disabled.</source>
        <translation>La red está caída. El adaptador está desconectado o deshabilitado.</translation>
    </message>
    <message>
        <source>The network is unreachable. There is no route from the selected adapter to this destination.</source>
        <translation>No se puede acceder a la red. No hay ninguna ruta desde el adaptador seleccionado hasta este destino.</translation>
    </message>
    <message>
        <source>The remote host reset the connection. An earlier packet triggered an ICMP port-unreachable reply, which means nothing is listening on the destination port.</source>
        <translation>El host remoto restableció la conexión. Un paquete anterior provocó una respuesta ICMP port-unreachable, lo que significa que nada está escuchando en el puerto de destino.</translation>
    </message>
    <message>
        <source>No buffer space available. The send queue is full: the interface cannot drain packets as fast as they are being produced, or the destination MAC has not been resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or checking the link usually resolves it.</source>
        <translation>No hay espacio de búfer disponible. La cola de envío está llena: la interfaz no puede evacuar los paquetes tan rápido como se generan, o la MAC de destino no se ha resuelto y los datagramas se acumulan a la espera de ARP. Bajar los cuadros por segundo o revisar el enlace suele resolverlo.</translation>
    </message>
    <message>
        <source>The destination host is down.</source>
        <translation>El host de destino está caído.</translation>
    </message>
    <message>
        <source>No route to host. ARP could not resolve the destination MAC address, so the frame was never built. This is the usual cause when nothing appears on the wire at all.</source>
        <translation>No hay ruta al host. ARP no pudo resolver la dirección MAC de destino, así que la trama nunca llegó a construirse. Es la causa habitual cuando no aparece absolutamente nada en el cable.</translation>
    </message>
    <message>
        <source>Cannot write the capture file: %1</source>
        <translation>No se puede escribir el archivo de captura: %1</translation>
    </message>
    <message>
        <source>This is not a packet log file (.tlog).</source>
        <translation>Este no es un archivo de registro de paquetes (.tlog).</translation>
    </message>
    <message>
        <source>The packet log is version %1 with %2-byte records; this program reads version 1 with 296-byte records.</source>
        <translation>El registro de paquetes es de la versión %1, con entradas de %2 bytes; este programa lee la versión 1, con entradas de 296 bytes.</translation>
    </message>
    <message>
        <source>The packet log&apos;s header is cut short.</source>
        <translation>La cabecera del registro de paquetes está incompleta.</translation>
    </message>
    <message>
        <source>Record %1 (at byte %2) is damaged; the %3 records before it were read.</source>
        <translation>La entrada %1 (en el byte %2) está dañada; se leyeron las %3 entradas anteriores.</translation>
    </message>
    <message>
        <source>The packet log is cut short in record %1 (at byte %2); the %3 records before it were read.</source>
        <translation>El registro de paquetes está cortado en la entrada %1 (en el byte %2); se leyeron las %3 entradas anteriores.</translation>
    </message>
    <message>
        <source>The capture helper (%1) is not installed beside the program, so adapter capture is not available.</source>
        <translation>El programa auxiliar de captura (%1) no está instalado junto al programa, así que la captura en un adaptador no está disponible.</translation>
    </message>
    <message>
        <source>The capture helper could not list the adapters: %1</source>
        <translation>El programa auxiliar de captura no pudo listar los adaptadores: %1</translation>
    </message>
    <message>
        <source>The capture helper could not be started: %1</source>
        <translation>No se pudo iniciar el programa auxiliar de captura: %1</translation>
    </message>
    <message>
        <source>The capture helper&apos;s output is damaged: %1</source>
        <translation>La salida del programa auxiliar de captura está dañada: %1</translation>
    </message>
    <message>
        <source>The capture helper stopped unexpectedly; the %1 packets captured until then are kept.</source>
        <translation>El programa auxiliar de captura se detuvo inesperadamente; se conservan los %1 paquetes capturados hasta entonces.</translation>
    </message>
    <message>
        <source>Capturing on %1 is not permitted (%2). Only the capture helper may capture: join the group &quot;%3&quot; (sudo usermod -aG %3 $USER, then log in again), or give a helper you built yourself the right with: sudo setcap cap_net_raw,cap_net_admin=eip %4</source>
        <translation>No se permite capturar en %1 (%2). Solo el programa auxiliar de captura puede capturar: únase al grupo &quot;%3&quot; (sudo usermod -aG %3 $USER y luego vuelva a iniciar sesión), o dé ese derecho a un programa auxiliar que haya compilado usted mismo con: sudo setcap cap_net_raw,cap_net_admin=eip %4</translation>
    </message>
    <message>
        <source>There is no adapter %1 to capture on.</source>
        <translation>No hay ningún adaptador %1 en el que capturar.</translation>
    </message>
    <message>
        <source>Capture on %1 failed: %2</source>
        <translation>La captura en %1 falló: %2</translation>
    </message>
    <message>
        <source>This is neither a pcapng nor a pcap capture.</source>
        <translation>Esto no es ni una captura pcapng ni una captura pcap.</translation>
    </message>
    <message>
        <source>The capture could not be written: %1</source>
        <translation>No se pudo escribir la captura: %1</translation>
    </message>
</context>
<context>
    <name>PacketLogWindow</name>
    <message>
        <source>%1 records · %2 shown · %3 dropped</source>
        <translation>%1 entradas · %2 mostradas · %3 descartadas</translation>
    </message>
    <message>
        <source>Network Log</source>
        <translation>Registro de red</translation>
    </message>
    <message>
        <source>Network Log - %1 (read-only)</source>
        <translation>Registro de red - %1 (solo lectura)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Stop adding new packets to the list; the node goes on receiving.</source>
        <translation>Deja de añadir paquetes nuevos a la lista; el nodo sigue recibiendo.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Packet fields</source>
        <translation>Campos del paquete</translation>
    </message>
    <message>
        <source>Packet bytes</source>
        <translation>Bytes del paquete</translation>
    </message>
    <message>
        <source>Reading stopped; the records read until then are shown.</source>
        <translation>Lectura detenida; se muestran las entradas leídas hasta entonces.</translation>
    </message>
    <message>
        <source>Capture on:</source>
        <translation>Capturar en:</translation>
    </message>
    <message>
        <source>Capture adapter</source>
        <translation>Adaptador de captura</translation>
    </message>
    <message>
        <source>The network adapter to capture Art-Net from, as a packet analyser does.</source>
        <translation>El adaptador de red desde el que capturar Art-Net, como hace un analizador de paquetes.</translation>
    </message>
    <message>
        <source>Stop Capture</source>
        <translation>Detener captura</translation>
    </message>
    <message>
        <source>Start Capture</source>
        <translation>Iniciar captura</translation>
    </message>
    <message>
        <source>Capture every Art-Net packet on the adapter, also those not meant for this node.</source>
        <translation>Captura cada paquete Art-Net del adaptador, también los que no van dirigidos a este nodo.</translation>
    </message>
    <message>
        <source>Capture state</source>
        <translation>Estado de la captura</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>Leyendo el archivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop reading the file and keep the records read so far.</source>
        <translation>Deja de leer el archivo y conserva las entradas leídas hasta ahora.</translation>
    </message>
</context>
<context>
    <name>PatchBar</name>
    <message>
        <source>No patch loaded.</source>
        <translation>No hay ningún patch cargado.</translation>
    </message>
    <message>
        <source>Patch File</source>
        <translation>Archivo de patch</translation>
    </message>
    <message>
        <source>Path to a patch file (.tpatch, .mpz, .elm)</source>
        <translation>Ruta a un archivo de patch (.tpatch, .mpz, .elm)</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a patch file</source>
        <translation>Buscar un archivo de patch</translation>
    </message>
    <message>
        <source>Patch file path</source>
        <translation>Ruta del archivo de patch</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Load the patch and build the monitor</source>
        <translation>Cargar el patch y construir el monitor</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Enter a patch path or pick one with the ... button.</source>
        <translation>Introduzca la ruta de un patch o elija uno con el botón &quot;...&quot;.</translation>
    </message>
    <message>
        <source>Select Patch File</source>
        <translation>Seleccionar archivo de patch</translation>
    </message>
    <message>
        <source>Patch Files (*.tpatch *.mpz *.elm);;Torvane MOX Patch (*.tpatch);;MADRIX 5 Patch (*.mpz);;ENTTEC ELM Project (*.elm);;All Files (*)</source>
        <translation>Archivos de patch (*.tpatch *.mpz *.elm);;Patch de Torvane MOX (*.tpatch);;Patch de MADRIX 5 (*.mpz);;Proyecto ENTTEC ELM (*.elm);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>PatchSummaryPanel</name>
    <message>
        <source>Patch Summary</source>
        <translation>Resumen del patch</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>No hay ningún patch cargado.</translation>
    </message>
    <message>
        <source>Universes</source>
        <translation>Universos</translation>
    </message>
    <message>
        <source>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, universe list and channel ranges.</source>
        <translation>Cargue un patch (.tpatch, MADRIX .mpz o ELM .elm) para ver su estructura, la lista de universos y los rangos de canales.</translation>
    </message>
    <message>
        <source>device %1</source>
        <translation>dispositivo %1</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Dispositivo #%1</translation>
    </message>
    <message>
        <source>format %1</source>
        <translation>formato %1</translation>
    </message>
    <message>
        <source>imported from %1</source>
        <translation>importado de %1</translation>
    </message>
    <message>
        <source>(unnamed project)</source>
        <translation>(proyecto sin nombre)</translation>
    </message>
    <message>
        <source>%1 ch limit</source>
        <translation>límite de %1 canales</translation>
    </message>
    <message>
        <source>no white channels</source>
        <translation>sin canales blancos</translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation>%1 px con blanco (W %2 · CW %3 · WW %4)</translation>
    </message>
    <message>
        <source>%1 groups · %2 universes · %3 fixtures</source>
        <translation>%1 grupos · %2 universos · %3 aparatos</translation>
    </message>
    <message>
        <source>%1 pixels (%2 drawable) · %3 kinetics</source>
        <translation>%1 píxeles (%2 dibujables) · %3 cinéticos</translation>
    </message>
    <message>
        <source>Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device Manager, set the Universe of this tester&apos;s &quot;BindIdx N&quot; row to N.</source>
        <translation>Art-Net: el universo N de MADRIX llega aquí como Port-Address N-1. En el Device Manager de MADRIX, ajuste a N el Universe de la fila &quot;BindIdx N&quot; de este tester.</translation>
    </message>
    <message>
        <source>Art-Net: the universes are taken from the ELM project as they are (ELM universe = Port-Address).</source>
        <translation>Art-Net: los universos se toman tal cual del proyecto ELM (universo ELM = Port-Address).</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Advertencias</translation>
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
        <translation>Aparato</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupo: %1</translation>
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
        <translation>Canal inicial: %1</translation>
    </message>
    <message>
        <source>Slots: %1</source>
        <translation>Slots: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
</context>
<context>
    <name>PlaybackPanel</name>
    <message>
        <source>Path to a .tpx recording</source>
        <translation>Ruta a una grabación .tpx</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Browse for a .tpx recording</source>
        <translation>Buscar una grabación .tpx</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Stop and return to the first frame</source>
        <translation>Detener y volver al primer fotograma</translation>
    </message>
    <message>
        <source>Frames are presented at exactly this rate.
The timestamp stored in the file is ignored - its scale is not reliable.</source>
        <translation>Los fotogramas se presentan exactamente a esta velocidad.
La marca de tiempo guardada en el archivo se ignora: su escala no es fiable.</translation>
    </message>
    <message>
        <source>Loop playback</source>
        <translation>Reproducción en bucle</translation>
    </message>
    <message>
        <source>Play the recording end to end, over and over.
This is how you check whether a period-based recording loops seamlessly.</source>
        <translation>Reproduce la grabación de principio a fin, una y otra vez.
Así se comprueba si una grabación basada en periodos enlaza sin cortes.</translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation>Fotograma %1 / %2</translation>
    </message>
    <message>
        <source>Select Recording</source>
        <translation>Seleccionar grabación</translation>
    </message>
    <message>
        <source>Recordings and captures (*.tpx *.pcapng *.pcap);;All Files (*)</source>
        <translation>Grabaciones y capturas (*.tpx *.pcapng *.pcap);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>PlaybackTransport</name>
    <message>
        <source>Measured %1 fps</source>
        <translation>Medido: %1 fps</translation>
    </message>
    <message>
        <source>%1 frame(s) dropped</source>
        <translation>%1 fotograma(s) descartado(s)</translation>
    </message>
    <message>
        <source>%1 ms/frame (max %2 fps)</source>
        <translation>%1 ms/fotograma (máx. %2 fps)</translation>
    </message>
    <message>
        <source>%1 ms/frame</source>
        <translation>%1 ms/fotograma</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Cuadros por segundo</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>Posición de reproducción</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Is a directory</source>
        <translation>Es un directorio</translation>
    </message>
</context>
<context>
    <name>RecordingWriter</name>
    <message>
        <source>The file was removed or renamed while recording.</source>
        <translation>El archivo se eliminó o se renombró durante la grabación.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>No se pudo escribir el archivo.</translation>
    </message>
</context>
<context>
    <name>TPatch</name>
    <message>
        <source>the &lt;console&gt; root element is missing</source>
        <translation>falta el elemento raíz &lt;console&gt;</translation>
    </message>
    <message>
        <source>the document has no root element</source>
        <translation>el documento no tiene elemento raíz</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (línea %2)</translation>
    </message>
    <message>
        <source>%1 fixture(s) use 16-bit LED types (%2); the monitor shows the high byte of each color only.</source>
        <translation>%1 aparato(s) usan tipos de LED de 16 bits (%2); el monitor solo muestra el byte alto de cada color.</translation>
    </message>
    <message>
        <source>Color channels the tester cannot show yet were ignored: %1</source>
        <translation>Se ignoraron canales de color que el tester aún no puede mostrar: %1</translation>
    </message>
    <message>
        <source>%1 fixture(s) have a pixel split across a universe boundary; its channels in the next universe are not shown.</source>
        <translation>%1 aparato(s) tienen un píxel repartido entre dos universos; sus canales del universo siguiente no se muestran.</translation>
    </message>
    <message>
        <source>%1 fixture(s) run past DMX channel 512 of their universe; channels beyond 512 are not shown.</source>
        <translation>%1 aparato(s) sobrepasan el canal DMX 512 de su universo; los canales más allá del 512 no se muestran.</translation>
    </message>
    <message>
        <source>%1 fixture(s) output %2 rather than Art-Net and were skipped.</source>
        <translation>%1 aparato(s) emiten %2 en lugar de Art-Net y se omitieron.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use LED types the tester does not know (%2) and were skipped.</source>
        <translation>%1 aparato(s) usan tipos de LED que el tester no conoce (%2) y se omitieron.</translation>
    </message>
    <message>
        <source>%1 fixture(s) use a universe that does not fit an Art-Net Port-Address and were skipped.</source>
        <translation>%1 aparato(s) usan un universo que no cabe en un Port-Address de Art-Net y se omitieron.</translation>
    </message>
    <message>
        <source>%1 fixture(s) are incomplete in the file and were skipped.</source>
        <translation>%1 aparato(s) están incompletos en el archivo y se omitieron.</translation>
    </message>
    <message>
        <source>%1 fixture(s) were skipped: the project has more than %2 LEDs.</source>
        <translation>Se omitieron %1 aparato(s): el proyecto tiene más de %2 LED.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable ELM project: %2</source>
        <translation>&quot;%1&quot; no es un proyecto ELM legible: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no DMX fixtures that can be shown.</source>
        <translation>&quot;%1&quot; no contiene aparatos DMX que se puedan mostrar.</translation>
    </message>
    <message>
        <source>zlib could not be initialised</source>
        <translation>no se pudo inicializar zlib</translation>
    </message>
    <message>
        <source>the unpacked data is too large</source>
        <translation>los datos descomprimidos son demasiado grandes</translation>
    </message>
    <message>
        <source>the file is truncated</source>
        <translation>el archivo está truncado</translation>
    </message>
    <message>
        <source>zlib error %1</source>
        <translation>error de zlib %1</translation>
    </message>
    <message>
        <source>Error:</source>
        <translation>Error:</translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation>Advertencias:</translation>
    </message>
    <message>
        <source>the &lt;madrix_patch&gt; root element is missing</source>
        <translation>falta el elemento raíz &lt;madrix_patch&gt;</translation>
    </message>
    <message>
        <source>the &lt;fixture_list&gt; element is missing</source>
        <translation>falta el elemento &lt;fixture_list&gt;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable MADRIX patch: %2</source>
        <translation>&quot;%1&quot; no es un patch de MADRIX legible: %2</translation>
    </message>
    <message>
        <source>Some MADRIX fields are not supported yet and were ignored: %1</source>
        <translation>Algunos campos de MADRIX aún no se admiten y se ignoraron: %1</translation>
    </message>
    <message>
        <source>%1 MADRIX fixture group(s) were found, but groups are not imported yet; all fixtures were placed in one group.</source>
        <translation>Se encontraron %1 grupo(s) de aparatos de MADRIX, pero los grupos aún no se importan; todos los aparatos se colocaron en un solo grupo.</translation>
    </message>
    <message>
        <source>%1 rotated multi-pixel fixture(s): the pixel layout after rotation has not been verified against MADRIX yet. Check them on the monitor.</source>
        <translation>%1 aparato(s) multipíxel rotado(s): la disposición de los píxeles tras la rotación aún no se ha verificado frente a MADRIX. Compruébelos en el monitor.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have pixels whose color channels span more than 6 DMX channels; only the first 6 are shown.</source>
        <translation>%1 aparato(s) tienen píxeles cuyos canales de color abarcan más de 6 canales DMX; solo se muestran los 6 primeros.</translation>
    </message>
    <message>
        <source>%1 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs reaches Art-Net.</source>
        <translation>Se omitieron %1 aparato(s) DVI: no tienen dirección DMX, así que nada de ellos llega a Art-Net.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no color channel the tester can show and were skipped.</source>
        <translation>%1 aparato(s) no tienen ningún canal de color que el tester pueda mostrar y se omitieron.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved by %2 (file version %3), which this importer has not been checked against. Verify the result on the monitor.</source>
        <translation>&quot;%1&quot; se guardó con %2 (versión de archivo %3), con la que este importador no se ha comprobado. Verifique el resultado en el monitor.</translation>
    </message>
    <message>
        <source>Could not open &quot;%1&quot;: %2</source>
        <translation>No se pudo abrir &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation>Dispositivo #%1</translation>
    </message>
    <message>
        <source>%1 fixtures overlap on %2 screen position(s) - only the topmost one is visible. Use the group filter to isolate a torvoverse.</source>
        <translation>%1 aparatos se superponen en %2 posición(es) de pantalla: solo es visible el superior. Use el filtro de grupos para aislar un torvoverse.</translation>
    </message>
    <message>
        <source>Universe numbers above 15 are truncated to 4 bits on the wire (Art-Net PortAddress). Affected universes: %1</source>
        <translation>Los números de universo mayores que 15 se truncan a 4 bits en la red (PortAddress de Art-Net). Universos afectados: %1</translation>
    </message>
    <message>
        <source>%1 port address(es) are used by more than one torvoverse (%2). Recorded playback can still tell them apart by frame order, but a live capture at a single IP will only see one device&apos;s data.</source>
        <translation>%1 Port-Address se usan en más de un torvoverse (%2). La reproducción de grabaciones aún puede distinguirlos por el orden dentro del fotograma, pero una captura en directo en una sola IP solo verá los datos de un dispositivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid .tpatch file: %2</source>
        <translation>&quot;%1&quot; no es un archivo .tpatch válido: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no groups.</source>
        <translation>&quot;%1&quot; no contiene grupos.</translation>
    </message>
    <message>
        <source>%1 fixture(s) have no usable scene layout and will not be drawn.</source>
        <translation>%1 aparato(s) no tienen una disposición de escena utilizable y no se dibujarán.</translation>
    </message>
    <message>
        <source>(+%1 more)</source>
        <translation>(+%1 más)</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a recording.</source>
        <translation>&quot;%1&quot; es una carpeta, no una grabación.</translation>
    </message>
    <message>
        <source>All %1 file(s) carry the %2-byte GPS metadata block</source>
        <translation>Los %1 archivo(s) llevan el bloque de metadatos GPS de %2 bytes</translation>
    </message>
    <message>
        <source>%1 file(s) are not GPS-Sync recordings</source>
        <translation>%1 archivo(s) no son grabaciones GPS-Sync</translation>
    </message>
    <message>
        <source>%1 - these files begin directly with an Art-Net packet, with no GPS metadata block in front of it. They were recorded with GPS Sync Compatible Record OFF and belong in the Standard Art-Net tab.</source>
        <translation>%1 - estos archivos empiezan directamente con un paquete Art-Net, sin bloque de metadatos GPS delante. Se grabaron con GPS Sync Compatible Record desactivado y corresponden a la pestaña Art-Net estándar.</translation>
    </message>
    <message>
        <source>Patch has no drawable universes to compare against</source>
        <translation>El patch no tiene universos dibujables con los que comparar</translation>
    </message>
    <message>
        <source>The recordings will still play, but nothing verifies that their universe layout matches this patch.</source>
        <translation>Las grabaciones se reproducirán igualmente, pero nada verifica que su disposición de universos coincida con este patch.</translation>
    </message>
    <message>
        <source>%1: file has %2, patch expects %3</source>
        <translation>%1: el archivo tiene %2, el patch espera %3</translation>
    </message>
    <message>
        <source>Universe count per frame matches the patch in every group</source>
        <translation>El número de universos por fotograma coincide con el patch en todos los grupos</translation>
    </message>
    <message>
        <source>Universe count per frame does not match the patch</source>
        <translation>El número de universos por fotograma no coincide con el patch</translation>
    </message>
    <message>
        <source>%1. The recording was made from a different patch, or a file is assigned to the wrong group.</source>
        <translation>%1. La grabación se hizo con otro patch, o un archivo está asignado al grupo equivocado.</translation>
    </message>
    <message>
        <source>%1 (record %2 is universe %3, patch expects %4; expected order %5)</source>
        <translation>%1 (el registro %2 es el universo %3, el patch espera %4; orden esperado %5)</translation>
    </message>
    <message>
        <source>Record order inside a frame matches the patch in every group</source>
        <translation>El orden de los registros dentro de un fotograma coincide con el patch en todos los grupos</translation>
    </message>
    <message>
        <source>Record order inside a frame does not match the patch</source>
        <translation>El orden de los registros dentro de un fotograma no coincide con el patch</translation>
    </message>
    <message>
        <source>%1. Every pixel still lights up, but on the wrong torvoverse - this is the failure that looks correct at a glance. Note: MOX writes the universe field of a GPS record as (subNet&lt;&lt;8)|universe, while the wire uses the 15-bit PortAddress; the two only differ when a universe number is above 15.</source>
        <translation>%1. Todos los píxeles se siguen encendiendo, pero en el torvoverse equivocado: es el fallo que a simple vista parece correcto. Nota: MOX escribe el campo de universo de un registro GPS como (subNet&lt;&lt;8)|universe, mientras que en la red se usa el PortAddress de 15 bits; ambos solo difieren cuando un número de universo es mayor que 15.</translation>
    </message>
    <message>
        <source>%1: header says %2 bytes per frame, the file measures %3</source>
        <translation>%1: la cabecera indica %2 bytes por fotograma, el archivo mide %3</translation>
    </message>
    <message>
        <source>%1: universeByteLength sums to %2 but frameByteSize says %3</source>
        <translation>%1: universeByteLength suma %2, pero frameByteSize indica %3</translation>
    </message>
    <message>
        <source>Frame byte size in the header matches the packets on disk</source>
        <translation>El tamaño en bytes del fotograma indicado en la cabecera coincide con los paquetes en disco</translation>
    </message>
    <message>
        <source>Frame byte size in the header is wrong</source>
        <translation>El tamaño en bytes del fotograma indicado en la cabecera es incorrecto</translation>
    </message>
    <message>
        <source>%1. A GPS device seeks by frameByteSize; a wrong value makes it land in the middle of a packet.</source>
        <translation>%1. Un dispositivo GPS se posiciona según frameByteSize; un valor erróneo hace que caiga en mitad de un paquete.</translation>
    </message>
    <message>
        <source>%1: %2 usable byte(s), %3 expected for %4 frame(s)</source>
        <translation>%1: %2 byte(s) utilizables, se esperaban %3 para %4 fotograma(s)</translation>
    </message>
    <message>
        <source>Every frame occupies exactly the same number of bytes</source>
        <translation>Todos los fotogramas ocupan exactamente el mismo número de bytes</translation>
    </message>
    <message>
        <source>Some files carry bytes that do not form a whole frame</source>
        <translation>Algunos archivos contienen bytes que no forman un fotograma completo</translation>
    </message>
    <message>
        <source>%1. The recording was cut short, or the universe lengths changed while it was running.</source>
        <translation>%1. La grabación se cortó antes de tiempo, o las longitudes de los universos cambiaron mientras estaba en curso.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>All %1 recording(s) are exactly %2 frame(s) long</source>
        <translation>Las %1 grabación(es) duran exactamente %2 fotograma(s)</translation>
    </message>
    <message>
        <source>Recordings differ in length by %1 frame(s)</source>
        <translation>Las grabaciones difieren en longitud en %1 fotograma(s)</translation>
    </message>
    <message>
        <source>%1. GPS devices stay locked by frame index, so the show falls apart as soon as the shortest file ends. Playback here stops at frame %2.</source>
        <translation>%1. Los dispositivos GPS se mantienen enganchados por índice de fotograma, así que el show se desmorona en cuanto termina el archivo más corto. Aquí la reproducción se detiene en el fotograma %2.</translation>
    </message>
    <message>
        <source>%1: header says %2, file holds %3</source>
        <translation>%1: la cabecera indica %2, el archivo contiene %3</translation>
    </message>
    <message>
        <source>Frame count in the header matches the packets on disk</source>
        <translation>El número de fotogramas de la cabecera coincide con los paquetes en disco</translation>
    </message>
    <message>
        <source>Frame count in the header is out of date</source>
        <translation>El número de fotogramas de la cabecera está desactualizado</translation>
    </message>
    <message>
        <source>%1. MOX writes this number when the recording is stopped; a zero or stale value means the recording was never closed properly.</source>
        <translation>%1. MOX escribe este número al detener la grabación; un valor cero u obsoleto significa que la grabación nunca se cerró correctamente.</translation>
    </message>
    <message>
        <source>Timestamps are in lockstep across all %1 file(s), over all %2 frame(s)</source>
        <translation>Las marcas de tiempo van sincronizadas en los %1 archivo(s), a lo largo de los %2 fotograma(s)</translation>
    </message>
    <message>
        <source>Timestamps vary by up to %1 s inside a single frame</source>
        <translation>Las marcas de tiempo varían hasta %1 s dentro de un mismo fotograma</translation>
    </message>
    <message>
        <source>Worst in group %1. All records of one frame are written in the same pass and should carry one value.</source>
        <translation>El peor caso está en el grupo %1. Todos los registros de un fotograma se escriben en la misma pasada y deberían llevar un único valor.</translation>
    </message>
    <message>
        <source>Timestamps drift by up to %1 s between files</source>
        <translation>Las marcas de tiempo se desvían hasta %1 s entre archivos</translation>
    </message>
    <message>
        <source>First seen at frame %1. MOX stamps every group with the same value in a given frame, so a difference means these files are not from one recording session.</source>
        <translation>Detectado por primera vez en el fotograma %1. MOX marca todos los grupos con el mismo valor en un fotograma dado, así que una diferencia significa que estos archivos no son de una misma sesión de grabación.</translation>
    </message>
    <message>
        <source>The set carries %1 universe(s); the patch has %2</source>
        <translation>El conjunto lleva %1 universo(s); el patch tiene %2</translation>
    </message>
    <message>
        <source>Pixels with no record behind them stay dark for the whole run.</source>
        <translation>Los píxeles sin ningún registro detrás permanecen a oscuras durante toda la reproducción.</translation>
    </message>
    <message>
        <source>The set covers all %1 torvoverse(s) in the patch</source>
        <translation>El conjunto cubre los %1 torvoverse(s) del patch</translation>
    </message>
    <message>
        <source>Two or more groups share a universe</source>
        <translation>Dos o más grupos comparten un universo</translation>
    </message>
    <message>
        <source>Universe(s) %1. Two files write the same pixels and the last one drawn wins.</source>
        <translation>Universo(s) %1. Dos archivos escriben los mismos píxeles y prevalece el último que se dibuja.</translation>
    </message>
    <message>
        <source>No patch loaded</source>
        <translation>No hay ningún patch cargado</translation>
    </message>
    <message>
        <source>A GPS-Sync set is defined by the patch: one recording per group. Load a .tpatch first.</source>
        <translation>Un conjunto GPS-Sync lo define el patch: una grabación por grupo. Cargue primero un .tpatch.</translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation>No hay ningún patch cargado.</translation>
    </message>
    <message>
        <source>%1 of %2 group(s) have no recording</source>
        <translation>%1 de %2 grupo(s) no tienen grabación</translation>
    </message>
    <message>
        <source>A GPS-Sync show is only complete when every group has its own file. Missing: %1</source>
        <translation>Un show GPS-Sync solo está completo cuando cada grupo tiene su propio archivo. Faltan: %1</translation>
    </message>
    <message>
        <source>%1 recording(s) still missing.</source>
        <translation>Aún faltan %1 grabación(es).</translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>%1 group(s), %1 recording(s) supplied</source>
        <translation>%1 grupo(s), %1 grabación(es) aportadas</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The same file is assigned to more than one group</source>
        <translation>El mismo archivo está asignado a más de un grupo</translation>
    </message>
    <message>
        <source>%1. Each group has its own recording; reusing one file makes two groups play the same animation.</source>
        <translation>%1. Cada grupo tiene su propia grabación; reutilizar un archivo hace que dos grupos reproduzcan la misma animación.</translation>
    </message>
    <message>
        <source>%1: file cannot be read</source>
        <translation>%1: no se puede leer el archivo</translation>
    </message>
    <message>
        <source>%1 of %2 file(s) could not be read.</source>
        <translation>No se pudieron leer %1 de %2 archivo(s).</translation>
    </message>
    <message>
        <source>The set holds no complete frame.</source>
        <translation>El conjunto no contiene ningún fotograma completo.</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - %3 failure(s), %4 warning(s); playback is enabled so you can see them</source>
        <translation>%1 grupo(s) - %2 fotogramas - %3 fallo(s), %4 advertencia(s); la reproducción está habilitada para que pueda verlos</translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - structure and sync verified</source>
        <translation>%1 grupo(s) - %2 fotogramas - estructura y sincronía verificadas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no usable DMX records.</source>
        <translation>&quot;%1&quot; no contiene registros DMX utilizables.</translation>
    </message>
    <message>
        <source>Stopped parsing at byte %1 of %2 - the file is truncated or contains a record this reader does not understand. %3 record(s) were usable.</source>
        <translation>Análisis detenido en el byte %1 de %2: el archivo está truncado o contiene un registro que este lector no entiende. Se pudieron usar %3 registro(s).</translation>
    </message>
    <message>
        <source>This recording does not match the loaded patch: the patch expects %1 record(s) per frame in a fixed order, but the file repeats every %2. Playback will follow the file and map records by universe number, which cannot separate devices that share a universe.</source>
        <translation>Esta grabación no coincide con el patch cargado: el patch espera %1 registro(s) por fotograma en un orden fijo, pero el archivo se repite cada %2. La reproducción seguirá el archivo y asignará los registros por número de universo, lo que no permite separar dispositivos que comparten un universo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too small to contain a single record.</source>
        <translation>&quot;%1&quot; es demasiado pequeño para contener un solo registro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not start with an Art-Net or KEL DMX record. It is not a Torvane recording, or it is damaged.</source>
        <translation>&quot;%1&quot; no empieza con un registro DMX Art-Net o KEL. No es una grabación de Torvane, o está dañada.</translation>
    </message>
    <message>
        <source>GPS-Sync recording: this file holds one group&apos;s universes only. Records are mapped by universe number, so pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.</source>
        <translation>Grabación GPS-Sync: este archivo solo contiene los universos de un grupo. Los registros se asignan por número de universo, así que los píxeles fuera de ese grupo permanecen a oscuras. Use la pestaña GPS Mirra para reproducir juntos un conjunto completo de archivos de grupo.</translation>
    </message>
    <message>
        <source>%1 trailing record(s) do not form a complete frame and are ignored.</source>
        <translation>%1 registro(s) finales no forman un fotograma completo y se ignoran.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not contain a complete frame.</source>
        <translation>&quot;%1&quot; no contiene un fotograma completo.</translation>
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
        <translation>Universo / fuente</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdidos</translation>
    </message>
    <message>
        <source>Out of order</source>
        <translation>Desordenados</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Sync missed</source>
        <translation>Sync perdidos</translation>
    </message>
    <message>
        <source>Length changes</source>
        <translation>Cambios de longitud</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Última recepción</translation>
    </message>
    <message>
        <source>Intervals min / median / max (ms)</source>
        <translation>Intervalos mín. / mediana / máx. (ms)</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>hace %1 s</translation>
    </message>
    <message>
        <source>the recording</source>
        <translation>la grabación</translation>
    </message>
</context>
<context>
    <name>UniverseHealthWindow</name>
    <message numerus="yes">
        <source>ArtSync: %1 per second, %n packet(s)</source>
        <translation>
            <numerusform>ArtSync: %1 por segundo, %n paquete</numerusform>
            <numerusform>ArtSync: %1 por segundo, %n paquetes</numerusform>
        </translation>
    </message>
    <message>
        <source>No ArtSync seen.</source>
        <translation>No se ha visto ningún ArtSync.</translation>
    </message>
    <message>
        <source>No universe yet: nothing received and no patch loaded.</source>
        <translation>Aún no hay ningún universo: no se ha recibido nada y no hay ningún patch cargado.</translation>
    </message>
    <message numerus="yes">
        <source>%n universe(s): %1</source>
        <translation>
            <numerusform>%n universo: %1</numerusform>
            <numerusform>%n universos: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Universe Health</source>
        <translation>Salud de universos</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Start every counter again from zero.</source>
        <translation>Vuelve a poner todos los contadores a cero.</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Exportar CSV...</translation>
    </message>
    <message>
        <source>Export the health table as CSV</source>
        <translation>Exportar la tabla de salud como CSV</translation>
    </message>
    <message>
        <source>Universe health</source>
        <translation>Salud de universos</translation>
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
        <translation>puerto</translation>
    </message>
    <message>
        <source>net/sub/uni</source>
        <translation>net/sub/uni</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>channels</source>
        <translation>canales</translation>
    </message>
    <message>
        <source>target IP</source>
        <translation>IP de destino</translation>
    </message>
</context>
<context>
    <name>UpdateController</name>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation>Buscar actualizaciones automáticamente (una vez al día)</translation>
    </message>
    <message>
        <source>Could not check for updates: %1</source>
        <translation>No se pudo comprobar si hay actualizaciones: %1</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is the latest version.</source>
        <translation>Torvane TALU %1 es la versión más reciente.</translation>
    </message>
    <message>
        <source>Torvane TALU %1 is available. You have %2.</source>
        <translation>Torvane TALU %1 está disponible. Tiene la %2.</translation>
    </message>
    <message>
        <source>Download...</source>
        <translation>Descargar...</translation>
    </message>
    <message>
        <source>Ignore This Version</source>
        <translation>Ignorar esta versión</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>La información de actualización es demasiado grande.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>La información de actualización no se puede leer.</translation>
    </message>
    <message>
        <source>The update information names no valid version.</source>
        <translation>La información de actualización no indica ninguna versión válida.</translation>
    </message>
    <message>
        <source>The update information has no valid download page.</source>
        <translation>La información de actualización no tiene una página de descarga válida.</translation>
    </message>
</context>
</TS>
