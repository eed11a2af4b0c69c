<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Nessun layout è attivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; è attivo.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Un clic passa al layout successivo.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Layout successivo</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Layout &amp;precedente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Differenze rispetto alle finestre attuali:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Posizione della scorciatoia:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Differenze rispetto alle finestre attuali</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Immagine di &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Nessuna. Le finestre sono come in questo layout.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
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
        <translation>Scrive tutti i layout in un file</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Sostituisce tutti i layout con quelli di un file</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Aggiunge i layout di un file, al posto di quelli con lo stesso nome</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppo</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Il proprio con lo stesso nome:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importa layout</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Layout in &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Layout del file</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Nel file:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Mantieni entrambi</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Sostituisci il proprio</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>S&amp;alta</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Deseleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Immagine di &quot;%1&quot; nel file</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Immagine del proprio &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Il nome è già in uso:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Sostituisce il proprio layout con questo nome</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Aggiunto come &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Già presente</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Non importato, il nome è già in uso</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Non importato</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>I layout in %1 sono di un&apos;altra versione di questo programma. Restano invariati.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>È danneggiato.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Alcuni dei layout in %1 sono danneggiati e sono stati tralasciati.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>È di un&apos;altra versione di questo programma o è danneggiato.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Impossibile salvare i layout in %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Impossibile leggere il file con i layout, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Viene conservato come %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Resta invariato e in questa sessione i layout non vengono salvati.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>G&amp;estisci layout...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Rinomina &quot;%1&quot; in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Elimina &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Elimina layout</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplica layout</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Sposta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Sposta layout</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importato da &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Esportato in &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Attiva</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;uplica</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Sposta su</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>Esp&amp;orta...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Sposta &amp;nel gruppo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Dispone le finestre come nel layout scelto</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Posizione %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modificato</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Attivo</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Non ci sono ancora layout. Salvarne uno nel menu &quot;Layout&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Blocca il layout</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nulla può essere spostato, staccato o chiuso per sbaglio</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Salva il layout</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Salva &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Torna al layout</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Torna a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>e altro</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nome del layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nuovo nome, poi Invio</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nome del nuovo layout</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Un layout deve avere un nome: digitarlo, poi premere Invio.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Usa scorciatoie</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 - %2 attivano i layout a cui sono assegnati questi tasti</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Posizione %1 vuota</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; non è un file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Impossibile scrivere &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>I layout sono stati esportati in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>non contiene layout</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; non è stato importato: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; non contiene layout per questo programma.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Impossibile leggere &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>I layout di &quot;%1&quot; sono stati importati.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>I layout di &quot;%1&quot; sono stati importati; le parti danneggiate sono state tralasciate.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>top</source>
        <translation>alto</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>basso</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 non è più una scheda</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>La scheda %1 è ora in primo piano</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 è ora una scheda accanto a %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 è stato spostato sul desktop</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 è ora una finestra a sé stante</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 non è più una finestra a sé stante</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 è ora accanto ai suoi vicini</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 è ora sopra o sotto i suoi vicini</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 ha un altro posto tra i suoi vicini</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 è stato spostato dalla riga %2 alla riga %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 è stato aggiunto</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 è stato rimosso</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 è stato spostato da %2 a %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 è aperto</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 è chiuso</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 ha cambiato dimensione da %2 a %3</translation>
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
        <translation>Rinomina &quot;%1&quot; in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Crea &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Elimina &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Salva &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Riordina layout</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Passa a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Passa al gruppo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Torna a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Modifica layout</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importa &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Non è possibile importare nulla da &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Danneggiato, quindi tralasciato: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Senza le parti danneggiate: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Di gruppi che questo programma non ha, quindi tralasciato: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; non può trovarsi qui in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; non è la radice &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; manca in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>A &quot;%2&quot; manca l&apos;attributo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; ha l&apos;attributo sconosciuto &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; non può essere &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Non può esserci testo in &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Lo stato in &quot;%1&quot; non ha un numero pari di cifre</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Un layout deve avere un nome.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Un nome non può contenere caratteri di controllo.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Esiste già un layout con questo nome.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Il file supera il limite di %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Questo non è un file normale</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Il file è vuoto</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Nel file non ci sono layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Il pannello agganciabile &quot;%1&quot; non ha un nome oggetto.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Più pannelli agganciabili hanno il nome oggetto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>La barra degli strumenti &quot;%1&quot; non ha un nome oggetto.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Più barre degli strumenti hanno il nome oggetto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Il pannello agganciabile &quot;%1&quot; non è in nessuna delle aree della finestra.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>La finestra &quot;%1&quot; non ha un widget centrale.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Layout</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Alcuni pannelli agganciabili sono su un lato che non esiste</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Lo stato è danneggiato</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>I pannelli agganciabili sono annidati troppo in profondità</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Lo stato descrive più di quanto una finestra possa avere</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Il documento è danneggiato: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Il documento non è un documento di layout: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Il documento ha la versione sconosciuta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Questo non è lo stato di una finestra</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Un layout non ha nome</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Più layout hanno il nome &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Un pannello agganciabile o una barra degli strumenti non ha nome</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Più pannelli agganciabili o barre degli strumenti hanno il nome &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>L&apos;unione ha ripetuto pannelli agganciabili o barre degli strumenti</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Alcuni pannelli agganciabili fluttuano come schede; unendo questo stato si perdono le sue barre degli strumenti</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Alcune barre degli strumenti sono su un lato che non esiste</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annulla: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Ripeti: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Mostra il pulsante in una barra degli strumenti</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>non esiste il comando &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>non esiste il comando &quot;%1&quot;; vedere &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>byte %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>documento</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>integro</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Non stampa nulla.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Stampa JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>non esiste il gruppo &quot;%1&quot;; esistenti: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>non esiste il layout &quot;%1&quot;; esistenti: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>non esiste la finestra &quot;%1&quot;; esistenti: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view e --current si escludono a vicenda</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Solo questo gruppo.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Solo questo layout.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Solo il layout di lavoro di un gruppo.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Solo questa finestra; in un file di impostazioni, lo stato in SEZIONE/CHIAVE.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>non ha né gruppi né layout con nome</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>è lo stato di una sola finestra, che non ha un ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>manca un file</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>troppi file</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 è indicato più di una volta</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>manca l&apos;opzione %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; vedere &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Indica se le finestre possono ricevere senza danni i layout dei file.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Indica che cosa contengono i layout di un file.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Indica in che cosa differiscono i layout.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Disegna un layout come immagine, PNG o SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Tralascia ciò che l&apos;unione ha ripetuto e i layout senza nome.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copia i layout di un documento in un altro.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Rinomina un layout, oppure una finestra in tutti i layout.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Sposta un layout in un&apos;altra posizione del suo gruppo.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Rimuove layout da un documento.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Uso: panorel COMANDO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMANDO&quot; spiega come si usa un comando. Un FILE è un documento di layout, lo stato di una finestra o un file di impostazioni che contiene tali stati; &quot;-&quot; è lo standard input.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Avvia un programma Qt 5 con un menu per i layout delle sue finestre.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Fa avviare un programma dal desktop con &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>impossibile scrivere sullo standard output</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>ha più layout; sceglierne uno con --group e --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Solo in %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Nessuna differenza</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Stampa JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Confronta il layout di --view con questo, dello stesso file se B non è indicato.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>non c&apos;è nulla con cui confrontare</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Il file da scrivere; &quot;-&quot; è lo standard output.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>USCITA</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Il gruppo del layout.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Il layout.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>manca l&apos;opzione %1; esistenti: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Sostituisce i layout i cui nomi esistono già.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copia i layout con un altro nome se il loro esiste già.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace e --keep-both si escludono a vicenda</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>La finestra da rinominare in tutti i layout.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Il nuovo nome.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>una finestra viene rinominata in tutti i layout</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Il layout davanti al quale spostarlo.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ALTRO</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Lo sposta dopo tutti gli altri.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>è necessario --before o --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 richiede un numero</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>non contiene alcun layout</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(layout di lavoro)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(barre degli strumenti)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Legge file fino a questa dimensione in MiB, %1 se non è indicata; 0 elimina il limite.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>non è un documento di layout</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>viene riscritto per intero, a causa del tipo di documento o della codifica</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>è danneggiato</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 è danneggiato</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>impossibile leggerlo</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>non esiste questo file di avvio</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>non avvia alcun programma</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>avvia un programma che ha un proprio Qt, il quale non carica estensioni</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>è un file di avvio personale e resta com&apos;è</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lascia le barre degli strumenti come sono quando si cambia layout.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Rimuove di nuovo il file di avvio.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Layout delle finestre</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size richiede una larghezza e un&apos;altezza fino a %1 pixel, per esempio 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>l&apos;immagine è troppo grande; scegliere una finestra con --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>l&apos;immagine è troppo grande</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>L&apos;immagine da scrivere: SVG se il nome termina con &quot;.svg&quot;, altrimenti PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>USCITA</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Dimensione di ogni finestra in pixel; se non è indicata, la sua, larga al massimo %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxA</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Disegna con colori scuri.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>non contiene lo stato di alcuna finestra</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>non può essere avviato</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lascia le barre degli strumenti come sono quando si cambia layout.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Mostra quali programmi hanno layout, senza avviarne alcuno.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list non accetta un programma</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>manca un programma</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>l&apos;estensione non è installata (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Finestra &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Dati utente: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Gruppo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Layout &quot;%1&quot; (attivo)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Layout di lavoro</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barre degli strumenti al momento della scrittura</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Stampa JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>sinistra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <source>top</source>
        <translation>alto</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>basso</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(senza nome)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>a %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(in primo piano)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Schede:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Basso:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Su un lato che non esiste:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Fluttuanti:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Chiusi:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(fluttuante)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(nascosta)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Barre degli strumenti, %1, riga %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Non è lo stato di una finestra o è danneggiato (dimensione: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Area centrale: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Né pannelli agganciabili né barre degli strumenti</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>non è integro; vedere &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>tralasciato: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>uno stato non viene scritto sul proprio file di impostazioni</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Scrive in questo file anziché sullo standard output.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>USCITA</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Mantiene i layout senza nome.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Tralascia gli stati non integri e lo segnala.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Lo stato in SEZIONE/CHIAVE di un file di impostazioni.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window è per i file di impostazioni</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>ha più stati; sceglierne uno con --window</translation>
    </message>
</context>
</TS>
