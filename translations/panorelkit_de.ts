<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Kein Fensterlayout ist aktiv.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; ist aktiv.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Ein Klick wechselt zum nächsten Fensterlayout.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Nächstes Fensterlayout</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Vorheriges Fensterlayout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Unterschiede zu den jetzigen Fenstern:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Tastenplatz:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Unterschiede zu den jetzigen Fenstern</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Bild von &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Keine. Die Fenster sehen aus wie dieses Fensterlayout.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>Schreibt alle Fensterlayouts in eine Datei</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Ersetzt alle Fensterlayouts durch die einer Datei</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Fügt die Fensterlayouts einer Datei hinzu und ersetzt dabei gleichnamige</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Ihres mit demselben Namen:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Fensterlayouts importieren</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Fensterlayouts in &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Fensterlayouts der Datei</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>In der Datei:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Beide behalten</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Ihres ersetzen</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>Üb&amp;erspringen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Keine auswählen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>I&amp;mportieren</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Bild von &quot;%1&quot; in der Datei</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Bild Ihres &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Der Name ist vergeben:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Ersetzt Ihr Fensterlayout dieses Namens</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Wird als &quot;%1&quot; hinzugefügt</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Wird hinzugefügt</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Bereits vorhanden</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Wird nicht importiert, der Name ist vergeben</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Wird nicht importiert</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Die Fensterlayouts in %1 stammen von einer anderen Version dieses Programms. Sie bleiben unverändert.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Einige der Fensterlayouts in %1 sind beschädigt und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Sie stammt von einer anderen Version dieses Programms oder ist beschädigt.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Die Fensterlayouts konnten nicht in %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Die Datei mit Ihren Fensterlayouts, %1, kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Sie wird als %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Sie bleibt unverändert, und bis zum Programmende werden keine Fensterlayouts gespeichert.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>F&amp;ensterlayouts verwalten...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; in &quot;%2&quot; umbenennen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; löschen</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Fensterlayouts löschen</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; duplizieren</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Fensterlayouts duplizieren</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; verschieben</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Fensterlayouts verschieben</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importieren</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Aus &quot;%1&quot; importiert: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Nach &quot;%1&quot; exportiert: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Fensterlayouts</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Wechseln</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>U&amp;mbenennen</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Nach oben</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>N&amp;ach unten</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>&amp;In Gruppe verschieben</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>Im&amp;portieren...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Ordnet die Fenster wie im ausgewählten Fensterlayout an</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Platz %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>geändert</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Es gibt noch keine Fensterlayouts. Speichern Sie eines im Menü &quot;Fensterlayouts&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Fensterlayout sperren</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nichts kann versehentlich verschoben, gelöst oder geschlossen werden</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Fensterlayout speichern</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; speichern</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Zurück zum Fensterlayout</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Zurück zu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>und mehr</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Name des Fensterlayouts</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Neuer Name, dann Eingabetaste</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Name des neuen Fensterlayouts</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Ein Fensterlayout braucht einen Namen: Namen eingeben, dann die Eingabetaste drücken.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Tastenkürzel verwenden</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 bis %2 wechseln zu den Fensterlayouts, denen diese Tasten zugeordnet sind</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Leerer Platz %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; ist keine Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Die Fensterlayouts wurden nach &quot;%1&quot; exportiert.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>die Datei enthält keine Fensterlayouts</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; wurde nicht importiert: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; enthält keine Fensterlayouts für dieses Programm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Die Fensterlayouts aus &quot;%1&quot; wurden importiert.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Die Fensterlayouts aus &quot;%1&quot; wurden importiert; beschädigte Teile wurden ausgelassen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 ist kein Reiter mehr</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Der Reiter %1 ist jetzt im Vordergrund</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 ist jetzt ein Reiter neben %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 wurde auf dem Bildschirm verschoben</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 ist jetzt ein eigenes Fenster</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 ist kein eigenes Fenster mehr</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 ist jetzt neben seinen Nachbarn</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 ist jetzt über oder unter seinen Nachbarn</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 hat einen anderen Platz zwischen seinen Nachbarn</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 wurde von Zeile %2 in Zeile %3 verschoben</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 wurde hinzugefügt</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 wurde entfernt</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 wurde von %2 nach %3 verschoben</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 ist geöffnet</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 ist geschlossen</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Die Größe von %1 hat sich von %2 auf %3 geändert</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; in &quot;%2&quot; umbenennen</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; anlegen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; löschen</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; speichern</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Fensterlayouts umordnen</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Zu &quot;%1&quot; wechseln</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Zur Gruppe &quot;%1&quot; wechseln</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Zurück zu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Fensterlayouts ändern</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importieren</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Aus &quot;%1&quot; kann nichts importiert werden: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Beschädigt und daher ausgelassen: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Ohne ihre beschädigten Teile: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Aus Gruppen, die dieses Programm nicht hat, und daher ausgelassen: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; darf hier in &quot;%2&quot; nicht stehen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; ist nicht das Wurzelelement &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; fehlt in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>In &quot;%2&quot; fehlt das Attribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; hat das unbekannte Attribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; kann nicht &quot;%1&quot; sein</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>In &quot;%1&quot; darf kein Text stehen</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Der Zustand in &quot;%1&quot; hat keine gerade Anzahl von Ziffern</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Ein Fensterlayout braucht einen Namen.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Ein Name darf keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Es gibt bereits ein Fensterlayout mit diesem Namen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Die Datei ist größer als die Grenze von %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Dies ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Die Datei enthält keine Fensterlayouts</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Das Andockfenster &quot;%1&quot; hat keinen Objektnamen.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Mehrere Andockfenster haben den Objektnamen &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Die Werkzeugleiste &quot;%1&quot; hat keinen Objektnamen.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Mehrere Werkzeugleisten haben den Objektnamen &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Das Andockfenster &quot;%1&quot; ist in keinem der Bereiche des Fensters.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Das Fenster &quot;%1&quot; hat kein zentrales Widget.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>Fenster&amp;layouts</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Fensterlayouts</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Andockfenster befinden sich an einer Seite, die es nicht gibt</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Der Zustand ist beschädigt</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Andockfenster sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Der Zustand beschreibt mehr, als ein Fenster haben kann</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Das Dokument ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Das Dokument ist kein Fensterlayout-Dokument: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Das Dokument hat die unbekannte Version &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Dies ist nicht der Zustand eines Fensters</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Ein Fensterlayout hat keinen Namen</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Mehrere Fensterlayouts haben den Namen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Ein Andockfenster oder eine Werkzeugleiste hat keinen Namen</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Mehrere Andockfenster oder Werkzeugleisten haben den Namen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Beim Zusammenführen wurden Andockfenster oder Werkzeugleisten wiederholt</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Andockfenster schweben als Reiter; beim Zusammenführen gehen die Werkzeugleisten dieses Zustands verloren</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Werkzeugleisten befinden sich an einer Seite, die es nicht gibt</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederherstellen: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Schaltfläche in einer Werkzeugleiste anzeigen</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Fensterlayouts</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>es gibt keinen Befehl &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>es gibt keinen Befehl &quot;%1&quot;; siehe &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>Byte %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Gibt nichts aus.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Gibt JSON aus.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>es gibt keine Gruppe &quot;%1&quot;; vorhanden: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>es gibt kein Fensterlayout &quot;%1&quot;; vorhanden: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>es gibt kein Fenster &quot;%1&quot;; vorhanden: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view und --current schließen sich gegenseitig aus</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Nur diese Gruppe.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Nur dieses Fensterlayout.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Nur das aktuelle Fensterlayout einer Gruppe.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Nur dieses Fenster; in einer Einstellungsdatei der Zustand unter ABSCHNITT/SCHLÜSSEL.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>hat weder Gruppen noch benannte Fensterlayouts</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>ist der Zustand eines einzelnen Fensters, das keine ID hat</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version an.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>eine Datei fehlt</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>zu viele Dateien</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 ist mehr als einmal angegeben</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>die Option %1 fehlt</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; siehe &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Sagt, ob Fenster die Fensterlayouts von Dateien ohne Schaden übernehmen können.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Sagt, was in den Fensterlayouts einer Datei steht.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Sagt, worin sich Fensterlayouts unterscheiden.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Zeichnet ein Fensterlayout als Bild, PNG oder SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Lässt aus, was beim Zusammenführen wiederholt wurde, sowie Fensterlayouts ohne Namen.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopiert Fensterlayouts eines Dokuments in ein anderes.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Benennt ein Fensterlayout um oder ein Fenster in allen Fensterlayouts.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Verschiebt ein Fensterlayout an eine andere Stelle seiner Gruppe.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Entfernt Fensterlayouts aus einem Dokument.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Aufruf: panorel BEFEHL ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help BEFEHL&quot; erklärt den Aufruf eines Befehls. Eine FILE ist ein Fensterlayout-Dokument, der Zustand eines Fensters oder eine Einstellungsdatei, die solche Zustände enthält; &quot;-&quot; ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Startet ein Qt-5-Programm mit einem Menü für die Layouts seiner Fenster.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Lässt die Arbeitsfläche ein Programm mit &quot;panorel run&quot; starten.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>auf die Standardausgabe kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>hat mehrere Fensterlayouts; eines mit --group und --view auswählen</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Nur in %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Kein Unterschied</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Gibt JSON aus.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Vergleicht das Fensterlayout von --view mit diesem, aus derselben Datei, wenn B fehlt.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>es gibt nichts, womit verglichen werden kann</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Die zu schreibende Datei; &quot;-&quot; ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>AUSGABE</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Die Gruppe des Fensterlayouts.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Das Fensterlayout.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>die Option %1 fehlt; vorhanden: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Ersetzt Fensterlayouts, deren Namen schon vorhanden sind.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopiert Fensterlayouts unter einem anderen Namen, wenn der Name schon vorhanden ist.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace und --keep-both schließen sich gegenseitig aus</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Das Fenster, das in allen Fensterlayouts umbenannt wird.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Der neue Name.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>ein Fenster wird in allen Fensterlayouts umbenannt</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Das Fensterlayout, vor das es verschoben wird.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ANDERES</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Verschiebt es hinter alle anderen.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>entweder --before oder --last ist nötig</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 braucht eine Zahl</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>enthält kein Fensterlayout</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(aktuelles Fensterlayout)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(Werkzeugleisten)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Liest Dateien bis zu dieser Größe in MiB, ohne Angabe %1; 0 hebt die Grenze auf.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>ist kein Fensterlayout-Dokument</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>wird wegen des Dokumenttyps oder der Kodierung als Ganzes neu geschrieben</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>ist beschädigt</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 ist beschädigt</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>diesen Starter gibt es nicht</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>startet kein Programm</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>startet ein Programm mit eigenem Qt, das keine Module lädt</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>ist ein selbst angelegter Starter und bleibt unverändert</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lässt Werkzeugleisten beim Wechsel eines Fensterlayouts unverändert.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Entfernt den Starter wieder.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Fensterlayout</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size braucht eine Breite und eine Höhe von höchstens %1 Pixeln, etwa 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>das Bild ist zu groß; ein Fenster mit --window auswählen</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>das Bild ist zu groß</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Das zu schreibende Bild: SVG, wenn der Name auf &quot;.svg&quot; endet, sonst PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>AUSGABE</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Größe jedes Fensters in Pixeln; ohne Angabe seine eigene, höchstens %1 breit.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Zeichnet in dunklen Farben.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>enthält keinen Zustand eines Fensters</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lässt Werkzeugleisten beim Wechsel eines Fensterlayouts unverändert.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Zeigt, welche Programme Fensterlayouts haben, und startet keines.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>zu --list gehört kein Programm</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>ein Programm fehlt</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>das Modul ist nicht installiert (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Fenster &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Benutzerdaten: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Gruppe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Fensterlayout &quot;%1&quot; (aktiv)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Fensterlayout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Aktuelles Fensterlayout</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Werkzeugleisten beim Schreiben des Dokuments</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Gibt JSON aus.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>bei %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(im Vordergrund)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Reiter:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Unten:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>An einer Seite, die es nicht gibt:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Schwebend:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Geschlossen:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(schwebend)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(ausgeblendet)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Werkzeugleisten, %1, Zeile %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Kein Zustand eines Fensters oder beschädigt (Größe: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Zentraler Bereich: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Weder Andockfenster noch Werkzeugleisten</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>ist nicht in Ordnung; siehe &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>ausgelassen: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>ein Zustand wird nicht über seine Einstellungsdatei geschrieben</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Schreibt in diese Datei statt auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>AUSGABE</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Behält Fensterlayouts ohne Namen.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Lässt Zustände aus, die nicht in Ordnung sind, und meldet dies.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Der Zustand unter ABSCHNITT/SCHLÜSSEL einer Einstellungsdatei.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window ist für Einstellungsdateien</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>hat mehrere Zustände; einen mit --window auswählen</translation>
    </message>
</context>
</TS>
