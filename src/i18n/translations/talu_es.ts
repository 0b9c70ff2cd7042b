<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ArtNetNode</name>
    <message>
        <source>No socket could be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only IPv4 addresses can be used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BroadcastPanel</name>
    <message>
        <source>Torvane Tester</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOVA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BRENO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEL6S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MIRRA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generic node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The local address this node listens on.

Running alongside Torvane MOX on the same machine? Pick a specific address, not Any: MOX binds to Any, and Windows delivers a unicast packet to the more specific socket.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any (0.0.0.0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (loopback)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the network interfaces again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art-Net uses 6454. Change only if you know why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset identities. Pick one, then edit the fields below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start listening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record incoming stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write every incoming Art-Net DMX packet to a .tpx file,
byte compatible with Torvane MOX recordings.

An existing file is appended to, not overwritten - that is how several animations end up in one file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where the recording is written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name (.tpx is added)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame rate of the source that is sending to us.
It only scales the 2-byte timestamp written into each record - the DMX data itself is stored exactly as received.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patch loaded - recording works, but the monitor stays dark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not present)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Recording Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No ArtPoll seen yet - no controller is looking for nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answering ArtPoll (%1 replies sent).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last ArtPoll %1 s ago - the controller may have stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pkt/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 packets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no DMX yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>last %1 ms ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 seq errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ignored</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DmxChannelGrid</name>
    <message>
        <source>no data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DmxInspector</name>
    <message>
        <source>Decimal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The universe shown, by Port-Address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · not patched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kinetic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>… (%1 in all)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · %1 of pixel(s) %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GpsGroupRow</name>
    <message>
        <source>expects %1 universe(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no drawable pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording for &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the recording of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - %2 frames - %3 universe(s)/frame - %4 B/frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (patch expects %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file differs from the patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file usable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file unusable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording for group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvane Recording (*.tpx);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GpsPlaybackPanel</name>
    <message>
        <source>One recording per group, all driven from one clock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOX writes a GPS-Sync recording as one file per group, named &lt;name&gt;_&lt;Group&gt;.tpx.
In the field each device plays its own group&apos;s file while the GPS pulse keeps them all on the same frame index.
This tab does the same: one clock drives frame n of every file at the same instant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-fill from folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick the folder the recording was saved into.

MOX names GPS-Sync files &lt;name&gt;_&lt;Group&gt;.tpx, so every group can be matched by name. When a folder holds several sessions, the one that covers the most groups is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open every file, verify structure and sync, then arm playback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Structure &amp; sync report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and return every file to its first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files are presented at exactly this rate.
The timestamp stored in the files is used to verify sync, not to pace playback.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop the whole set (1 -&gt; end -&gt; 1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the set end to end, over and over.
Every file wraps on the same frame, so a set that drifts shows it within a few passes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set loaded: %1 recording(s), %2 frames each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No set loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 file(s) driven together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timestamps in step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>timestamps %1 s apart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupFilterPanel</name>
    <message>
        <source>Groups &amp; Universes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port addr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only pixels on this Z layer are drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw every Z layer at once. Layers overlap in 2D, so this is a quick look rather than an inspection view.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net %1 / SubNet %2 / Universe %3
Target IP %4
Select to highlight this universe on the monitor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single layer (Z %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers %1 - %2. Only the selected layer is drawn.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ready. Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to begin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Monitor Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG Image (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot saved to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorded playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play a .tpx recording. A patch is optional: without one the monitor stays dark and the DMX tab shows the data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live broadcast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Act as an Art-Net node and paint the monitor from live DMX.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Art-Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One .tpx file recorded for the whole patch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Mirra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One .tpx file per group, recorded with GPS Sync Compatible Record.
All of them are driven from a single clock, frame n at the same instant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DMX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current monitor image as a PNG file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add W / CW / WW channel values to the pixel colour.

Off by default: MOX derives the white channels FROM rgb, so there is no single correct way back. This is a visibility aid - without it, white-only fixtures stay black even while they are receiving data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the red / green / blue X-Y-Z arrows at the origin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw LEDs as squares without antialiasing.

Roughly 5x faster on large patches - use it when the 3D view cannot keep up with playback. Pixels look square instead of round.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto orbit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swing the model through +-45 degrees on two axes.
Touching the view with the mouse stops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the default angle and distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder holding the GPS-Sync recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a patch first - the group list comes from it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file in &quot;%1&quot; matches a group name. GPS-Sync recordings are named &lt;name&gt;_&lt;Group&gt;.tpx.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matched all %1 group(s). Press Load set to verify them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matched %1 of %2 group(s). Fill the rest by hand, then press Load set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file list changed - press Load set to verify it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a patch first - a GPS-Sync set is one recording per group, and the group list comes from the patch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Mirra set: %1 recording(s), %2 frames each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not listen on %1:%2 - %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art-Net node active on %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listening on %1:%2, advertising %3 universe(s).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not listening.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start listening first - there is no node to announce.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ArtPollReply broadcast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop listening first - the address cannot change while the node is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network interfaces refreshed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start listening first - there is nothing to record yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a folder and a file name first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Appending to %1 (%2 KB already in the file).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1 frame(s), %2 record(s), %3 KB to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Planned for a future version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Patch...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Recording...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open GPS-Sync Set Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match every group of the loaded patch with its &lt;name&gt;_&lt;Group&gt;.tpx file in a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent Recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Network Log...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Network Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Network Log As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Monitor Snapshot...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Patch Report...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Log...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Monitor Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interface Theme...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2D Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Orbit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play / Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Frame...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Mirra Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Broadcast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen for Art-Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Incoming Stream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Announce Node Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broadcast an ArtPollReply immediately instead of waiting for the next poll.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh Network Interfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node Discovery (ArtPoll Scan)...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test Signal Generator...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sACN (E1.31) Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Logs Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches that produced import warnings are kept here together with the messages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches (*.tpatch *.mpz *.elm *.elmbackup);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings (*.tpx);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback paused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame (0 - %1):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor image copied to the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interface theme: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interface Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no writable logs folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Torvane TALU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See what an LED installation shows for a stream of Art-Net DMX data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1, built %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running on Qt %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program uses:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt %1 (The Qt Company), under the GNU Lesser General Public License version 3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zlib (Jean-loup Gailly and Mark Adler), under the zlib licence.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvane TALU is © 2026 Torvane. All rights reserved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no writable logs folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch could not be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of the file and this message was saved to:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No recording loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This patch has no groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No set loaded. Give every group its own GPS-Sync recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch loaded but contains no drawable pixels. Check that the patch was saved from the Patch Editor with its layout.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1 in %2 ms with %3 warning(s) - see the Patch tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pixels drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of the patch and its warnings is in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no set to play. Fill in the group recordings and press Load set first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no recording to play. Load a .tpx file first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to play - no recording is loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback controls work in Recorded playback mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing %1 recording(s) in step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reached the end of the recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rewound to the first frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frames at %2 fps = %3 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine is not sustaining %1 fps (about %2 fps measured). Playback continues and drops frames to stay in real time; lower the fps yourself if you want every frame shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sustaining about %1 fps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS Mirra: one recording per group, all driven from one clock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Art-Net: a single recording drives the whole patch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a .tpx path or pick one with the ... button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2 · %3 frames · %4 s at %5 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patch loaded - the monitor stays dark; the DMX tab shows every recorded universe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space plays and pauses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White channel contribution off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This patch has no W / CW / WW channels - white contribution has nothing to add.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>peak white value %1 - contribution applied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>but every white value received so far is 0. MOX writes 0 to these channels unless White Channel is configured in the project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2 · port 0x%3 · channel %4 · Z %5 · rgb(%6, %7, %8)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoxStyle</name>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PacketLog</name>
    <message>
        <source>The capture is cut short in packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The capture is damaged at packet %1 (at byte %2); the %3 packets before it were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 packets were not UDP over IPv4 and were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a pcap capture file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a pcapng capture file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected end of filter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing &apos;)&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected token: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filter is nested too deeply (more than %1 levels of &apos;!&apos; and &apos;(&apos;).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>source or destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is neither a packet log (.tlog) nor a pcapng or pcap capture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the packet log %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SEND FAILED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT SENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PARTIAL WRITE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>device offline (no ArtPollReply within the liveness window)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output is closed (udpTransferOpen = false)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Manager test broadcast is active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>socket unavailable (adapter is being switched)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>target address could not be resolved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access denied. A broadcast address was used on a socket that does not have SO_BROADCAST enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The datagram is larger than the maximum the transport supports. Check the channel count and the interface MTU.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The requested address is not valid in this context. The adapter may have lost its IP address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network is down. The adapter is disconnected or disabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network is unreachable. There is no route from the selected adapter to this destination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The remote host reset the connection. An earlier packet triggered an ICMP port-unreachable reply, which means nothing is listening on the destination port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No buffer space available. The send queue is full: the interface cannot drain packets as fast as they are being produced, or the destination MAC has not been resolved and datagrams are piling up waiting for ARP. Lowering the frame rate or checking the link usually resolves it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The destination host is down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No route to host. ARP could not resolve the destination MAC address, so the frame was never built. This is the usual cause when nothing appears on the wire at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write the capture file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a packet log file (.tlog).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packet log is version %1 with %2-byte records; this program reads version 1 with 296-byte records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packet log&apos;s header is cut short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record %1 (at byte %2) is damaged; the %3 records before it were read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packet log is cut short in record %1 (at byte %2); the %3 records before it were read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchBar</name>
    <message>
        <source>No patch loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path to a patch file (.tpatch, .mpz, .elm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for a patch file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch file path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load the patch and build the monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a patch path or pick one with the ... button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Patch File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch Files (*.tpatch *.mpz *.elm);;Torvane MOX Patch (*.tpatch);;MADRIX 5 Patch (*.mpz);;ENTTEC ELM Project (*.elm);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchSummaryPanel</name>
    <message>
        <source>Patch Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a patch (.tpatch, MADRIX .mpz or ELM .elm) to see its structure, universe list and channel ranges.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>device %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>format %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>imported from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(unnamed project)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ch limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no white channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 px with white (W %2 · CW %3 · WW %4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 groups · %2 universes · %3 fixtures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pixels (%2 drawable) · %3 kinetics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art-Net: MADRIX universe N arrives here as Port-Address N-1. In the MADRIX Device Manager, set the Universe of this tester&apos;s &quot;BindIdx N&quot; row to N.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art-Net: the universes are taken from the ELM project as they are (ELM universe = Port-Address).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PixelTexts</name>
    <message>
        <source>%1 @ %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvoverse: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port address: 0x%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start channel: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slots: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaybackPanel</name>
    <message>
        <source>Path to a .tpx recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for a .tpx recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and return to the first frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames are presented at exactly this rate.
The timestamp stored in the file is ignored - its scale is not reliable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the recording end to end, over and over.
This is how you check whether a period-based recording loops seamlessly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvane Recording (*.tpx);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaybackTransport</name>
    <message>
        <source>Measured %1 fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 frame(s) dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms/frame (max %2 fps)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms/frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> fps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Is a directory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordingWriter</name>
    <message>
        <source>The file was removed or renamed while recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TPatch</name>
    <message>
        <source>the &lt;console&gt; root element is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document has no root element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) use 16-bit LED types (%2); the monitor shows the high byte of each color only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color channels the tester cannot show yet were ignored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) have a pixel split across a universe boundary; its channels in the next universe are not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) run past DMX channel 512 of their universe; channels beyond 512 are not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) output %2 rather than Art-Net and were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) use LED types the tester does not know (%2) and were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) use a universe that does not fit an Art-Net Port-Address and were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) are incomplete in the file and were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) were skipped: the project has more than %2 LEDs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable ELM project: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no DMX fixtures that can be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zlib could not be initialised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unpacked data is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is truncated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zlib error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the &lt;madrix_patch&gt; root element is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the &lt;fixture_list&gt; element is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a readable MADRIX patch: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some MADRIX fields are not supported yet and were ignored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MADRIX fixture group(s) were found, but groups are not imported yet; all fixtures were placed in one group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rotated multi-pixel fixture(s): the pixel layout after rotation has not been verified against MADRIX yet. Check them on the monitor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) have pixels whose color channels span more than 6 DMX channels; only the first 6 are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 DVI fixture(s) were skipped: they have no DMX address, so nothing of theirs reaches Art-Net.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) have no color channel the tester can show and were skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved by %2 (file version %3), which this importer has not been checked against. Verify the result on the monitor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device #%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixtures overlap on %2 screen position(s) - only the topmost one is visible. Use the group filter to isolate a torvoverse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe numbers above 15 are truncated to 4 bits on the wire (Art-Net PortAddress). Affected universes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 port address(es) are used by more than one torvoverse (%2). Recorded playback can still tell them apart by frame order, but a live capture at a single IP will only see one device&apos;s data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid .tpatch file: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 fixture(s) have no usable scene layout and will not be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(+%1 more)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 file(s) carry the %2-byte GPS metadata block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 file(s) are not GPS-Sync recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - these files begin directly with an Art-Net packet, with no GPS metadata block in front of it. They were recorded with GPS Sync Compatible Record OFF and belong in the Standard Art-Net tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch has no drawable universes to compare against</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recordings will still play, but nothing verifies that their universe layout matches this patch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: file has %2, patch expects %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe count per frame matches the patch in every group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe count per frame does not match the patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The recording was made from a different patch, or a file is assigned to the wrong group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (record %2 is universe %3, patch expects %4; expected order %5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record order inside a frame matches the patch in every group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record order inside a frame does not match the patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Every pixel still lights up, but on the wrong torvoverse - this is the failure that looks correct at a glance. Note: MOX writes the universe field of a GPS record as (subNet&lt;&lt;8)|universe, while the wire uses the 15-bit PortAddress; the two only differ when a universe number is above 15.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: header says %2 bytes per frame, the file measures %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: universeByteLength sums to %2 but frameByteSize says %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame byte size in the header matches the packets on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame byte size in the header is wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. A GPS device seeks by frameByteSize; a wrong value makes it land in the middle of a packet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 usable byte(s), %3 expected for %4 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every frame occupies exactly the same number of bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files carry bytes that do not form a whole frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The recording was cut short, or the universe lengths changed while it was running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 recording(s) are exactly %2 frame(s) long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings differ in length by %1 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. GPS devices stay locked by frame index, so the show falls apart as soon as the shortest file ends. Playback here stops at frame %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: header says %2, file holds %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame count in the header matches the packets on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame count in the header is out of date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. MOX writes this number when the recording is stopped; a zero or stale value means the recording was never closed properly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timestamps are in lockstep across all %1 file(s), over all %2 frame(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timestamps vary by up to %1 s inside a single frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worst in group %1. All records of one frame are written in the same pass and should carry one value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timestamps drift by up to %1 s between files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First seen at frame %1. MOX stamps every group with the same value in a given frame, so a difference means these files are not from one recording session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The set carries %1 universe(s); the patch has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels with no record behind them stay dark for the whole run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The set covers all %1 torvoverse(s) in the patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two or more groups share a universe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Universe(s) %1. Two files write the same pixels and the last one drawn wins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patch loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A GPS-Sync set is defined by the patch: one recording per group. Load a .tpatch first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No patch loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 group(s) have no recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A GPS-Sync show is only complete when every group has its own file. Missing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 recording(s) still missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 = %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 group(s), %1 recording(s) supplied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same file is assigned to more than one group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Each group has its own recording; reusing one file makes two groups play the same animation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: file cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 file(s) could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The set holds no complete frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - %3 failure(s), %4 warning(s); playback is enabled so you can see them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 group(s) - %2 frames - structure and sync verified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; contains no usable DMX records.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped parsing at byte %1 of %2 - the file is truncated or contains a record this reader does not understand. %3 record(s) were usable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This recording does not match the loaded patch: the patch expects %1 record(s) per frame in a fixed order, but the file repeats every %2. Playback will follow the file and map records by universe number, which cannot separate devices that share a universe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too small to contain a single record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not start with an Art-Net or KEL DMX record. It is not a Torvane recording, or it is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPS-Sync recording: this file holds one group&apos;s universes only. Records are mapped by universe number, so pixels outside that group stay dark. Use the GPS Mirra tab to play a full set of group files together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 trailing record(s) do not form a complete frame and are ignored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not contain a complete frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Art-Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEL (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> GPS-Sync</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UniverseTableModel</name>
    <message>
        <source>port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>net/sub/uni</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>target IP</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateController</name>
    <message>
        <source>Software Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for updates automatically (once a day)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvane TALU %1 is the latest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Torvane TALU %1 is available. You have %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore This Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
