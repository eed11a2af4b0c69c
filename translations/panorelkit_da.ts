<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Intet layout er aktivt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; er aktivt.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Et klik går til det næste layout.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Næste layout</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Forrige layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Forskelle fra de nuværende vinduer:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Genvejsplads:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Forskelle fra de nuværende vinduer</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Billede af &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Ingen. Vinduerne ser ud som dette layout.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
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
        <translation>Skriver alle layouter til en fil</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Erstatter alle layouter med dem fra en fil</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Tilføjer layouterne fra en fil i stedet for dem med samme navn</translation>
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
        <translation>Dit med samme navn:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importer layouter</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Layouter i &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Layouter i filen</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>I filen:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Behold begge</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Erstat dit</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Spring over</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Vælg alle</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Vælg &amp;ingen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>I&amp;mporter</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Billede af &quot;%1&quot; i filen</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Billede af dit &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Navnet er optaget:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Erstatter dit layout med dette navn</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Tilføjes som &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Tilføjes</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Du har det allerede</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Importeres ikke, navnet er optaget</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Importeres ikke</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Layouterne i %1 er fra en anden version af dette program. De forbliver, som de er.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Den er beskadiget.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Nogle af layouterne i %1 er beskadigede og blev udeladt.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Den er fra en anden version af dette program eller beskadiget.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Layouterne kunne ikke gemmes i %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Filen med dine layouter, %1, kan ikke læses. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Den bevares som %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Den forbliver, som den er, og layouter gemmes ikke i denne session.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Administrer layouter...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Omdøb &quot;%1&quot; til &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Slet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Slet layouter</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Dupliker &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Dupliker layouter</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Flyt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Flyt layouter</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importeret fra &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Eksporteret til &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Layouter</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Fortryd</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gentag</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Skift</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Omdøb</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Dupliker</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;let</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Fl&amp;yt op</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Flyt &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksporter...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Flyt &amp;til gruppe</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Arrangerer vinduerne som i det valgte layout</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Plads %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>ændret</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktivt</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Der er ingen layouter endnu. Gem et i menuen &quot;Layouter&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Lås layout</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Intet kan flyttes, frigøres eller lukkes ved et uheld</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Gem layout</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Gem &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Tilbage til layout</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tilbage til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>og mere</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Layoutets navn</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nyt navn, derefter Retur</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Navn på det nye layout</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Et layout skal have et navn: skriv et, og tryk derefter på Retur.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Brug genveje</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 til %2 skifter til de layouter, som disse taster er tildelt</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Tom plads %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; er ikke en fil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; kan ikke skrives: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Layouterne blev eksporteret til &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>den indeholder ingen layouter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; blev ikke importeret: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; indeholder ingen layouter til dette program.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; kan ikke læses.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Layouterne fra &quot;%1&quot; blev importeret.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Layouterne fra &quot;%1&quot; blev importeret; beskadigede dele blev udeladt.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>venstre</translation>
    </message>
    <message>
        <source>right</source>
        <translation>højre</translation>
    </message>
    <message>
        <source>top</source>
        <translation>top</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>bund</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(uden navn)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 er ikke længere et faneblad</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Fanebladet %1 er nu forrest</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 er nu et faneblad ved siden af %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 er flyttet på skrivebordet</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 er nu et selvstændigt vindue</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 er ikke længere et selvstændigt vindue</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 er nu ved siden af sine naboer</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 er nu over eller under sine naboer</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 har en anden plads blandt sine naboer</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 er flyttet fra linje %2 til linje %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 er tilføjet</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 er fjernet</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 er flyttet fra %2 til %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 er åben</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 er lukket</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 har ændret størrelse fra %2 til %3</translation>
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
        <translation>Omdøb &quot;%1&quot; til &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Ny &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Slet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Gem &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Flyt om på layouter</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Skift til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Skift til gruppen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tilbage til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Ændr layouter</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importer &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Intet i &quot;%1&quot; kan importeres: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Beskadiget og derfor udeladt: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Uden de beskadigede dele: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Fra grupper, som dette program ikke har, og derfor udeladt: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; kan ikke stå her i &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; er ikke roden &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; mangler i &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; mangler attributten &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; har den ukendte attribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; kan ikke være &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Der kan ikke være tekst i &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Tilstanden i &quot;%1&quot; har ikke et lige antal cifre</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Et layout skal have et navn.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Et navn kan ikke indeholde kontroltegn.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Der findes allerede et layout med dette navn.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Filen er større end grænsen på %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Dette er ikke en almindelig fil</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Filen er tom</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Der er ingen layouter i filen</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Dokpanelet &quot;%1&quot; har intet objektnavn.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Flere dokpaneler har objektnavnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Værktøjslinjen &quot;%1&quot; har intet objektnavn.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Flere værktøjslinjer har objektnavnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Dokpanelet &quot;%1&quot; er ikke i nogen af vinduets områder.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Vinduet &quot;%1&quot; har ingen central kontrol.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Layouter</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouter</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Dokpaneler er på en side, som ikke findes</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Tilstanden er beskadiget</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dokpaneler er indlejret for dybt</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Tilstanden beskriver mere, end et vindue kan have</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokumentet er beskadiget: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Dokumentet er ikke et layoutdokument: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokumentet har den ukendte version &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Dette er ikke et vindues tilstand</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Et layout har intet navn</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Flere layouter har navnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Et dokpanel eller en værktøjslinje har intet navn</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Flere dokpaneler eller værktøjslinjer har navnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Fletning har gentaget dokpaneler eller værktøjslinjer</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokpaneler flyder som faneblade; når denne tilstand flettes, går dens værktøjslinjer tabt</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Værktøjslinjer er på en side, som ikke findes</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Fortryd</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Fortryd: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gentag</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Gentag: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Vis knappen i en værktøjslinje</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouter</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>der er ingen kommando &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>der er ingen kommando &quot;%1&quot;; se &quot;panorel help&quot;</translation>
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
        <translation>dokument</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>i orden</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Udskriver intet.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Udskriver JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>der er ingen gruppe &quot;%1&quot;; der er: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>der er intet layout &quot;%1&quot;; der er: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>der er intet vindue &quot;%1&quot;; der er: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view og --current udelukker hinanden</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Kun denne gruppe.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Kun dette layout.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Kun en gruppes arbejdslayout.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Kun dette vindue; i en indstillingsfil tilstanden ved SEKTION/NØGLE.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>har hverken grupper eller navngivne layouter</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>er tilstanden for et enkelt vindue, som ikke har noget id</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Viser denne hjælp.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Viser versionen.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>der mangler en fil</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>for mange filer</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 er angivet mere end én gang</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>tilvalget %1 mangler</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; se &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Fortæller, om vinduer kan få layouterne fra filer uden at tage skade.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Fortæller, hvad layouterne i en fil indeholder.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Fortæller, hvad layouter adskiller sig i.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Tegner et layout som et billede, PNG eller SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Udelader det, som fletning har gentaget, og layouter uden navn.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopierer layouter fra et dokument til et andet.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Omdøber et layout, eller et vindue i alle layouter.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Flytter et layout til en anden plads i dets gruppe.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Fjerner layouter fra et dokument.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Brug: panorel KOMMANDO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help KOMMANDO&quot; fortæller, hvordan en kommando bruges. En FILE er et layoutdokument, et vindues tilstand eller en indstillingsfil, som indeholder sådanne tilstande; &quot;-&quot; er standardinput.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Starter et Qt 5-program med en menu til layouterne for dets vinduer.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Lader skrivebordet starte et program med &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>kan ikke skrive til standardoutput</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>har flere layouter; vælg et med --group og --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Kun i %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Ingen forskel</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Udskriver JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Sammenligner layoutet for --view med dette, fra samme fil, hvis B mangler.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>der er intet at sammenligne med</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Filen, der skal skrives; &quot;-&quot; er standardoutput.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UD</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Layoutets gruppe.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Layoutet.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>tilvalget %1 mangler; der er: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Erstatter layouter, hvis navne allerede findes.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopierer layouter under et andet navn, når deres eget allerede findes.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace og --keep-both udelukker hinanden</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Vinduet, der skal omdøbes i alle layouter.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Det nye navn.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>et vindue omdøbes i alle layouter</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Layoutet, som det skal flyttes foran.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ANDET</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Flytter det efter alle andre.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>enten --before eller --last er nødvendigt</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 kræver et tal</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>indeholder intet layout</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(uden navn)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(arbejdslayout)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(værktøjslinjer)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Læser filer op til denne størrelse i MiB, %1 hvis den ikke er angivet; 0 ophæver grænsen.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>er ikke et layoutdokument</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>skrives helt på ny på grund af dokumenttypen eller tegnkodningen</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>er beskadiget</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 er beskadiget</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kan ikke læses</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>der findes ingen sådan programstarter</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>starter intet program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>starter et program med sit eget Qt, som ikke indlæser udvidelsesmoduler</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>er en programstarter, du selv har lavet, og forbliver, som den er</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lader værktøjslinjerne være, som de er, når der skiftes layout.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Fjerner programstarteren igen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Vindueslayout</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size kræver en bredde og en højde på højst %1 pixel, for eksempel 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>billedet er for stort; vælg et vindue med --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>billedet er for stort</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Billedet, der skal skrives: SVG, hvis navnet ender på &quot;.svg&quot;, ellers PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UD</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Størrelse på hvert vindue i pixel; dets egen, højst %1 bred, hvis den ikke er angivet.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Tegner i mørke farver.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>indeholder ingen vinduestilstand</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>kan ikke startes</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lader værktøjslinjerne være, som de er, når der skiftes layout.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Viser, hvilke programmer der har layouter, og starter ingen.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list tager ikke noget program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>der mangler et program</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>udvidelsesmodulet er ikke installeret (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Vindue &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Brugerdata: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Gruppe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Layout &quot;%1&quot; (aktivt)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Arbejdslayout</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Værktøjslinjer, da dokumentet blev skrevet</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Udskriver JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>venstre</translation>
    </message>
    <message>
        <source>right</source>
        <translation>højre</translation>
    </message>
    <message>
        <source>top</source>
        <translation>top</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>bund</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(uden navn)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>ved %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(forrest)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Faneblade:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Venstre:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Højre:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Top:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Bund:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>På en side, som ikke findes:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flydende:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Lukket:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flydende)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(skjult)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Værktøjslinjer, %1, linje %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Ikke et vindues tilstand, eller beskadiget (størrelse: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Centralt område: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Hverken dokpaneler eller værktøjslinjer</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>er ikke i orden; se &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>udelod %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>en tilstand skrives ikke oven i sin indstillingsfil</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Skriver til denne fil i stedet for standardoutput.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UD</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Bevarer layouter uden navn.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Udelader tilstande, der ikke er i orden, og gør opmærksom på det.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Tilstanden ved SEKTION/NØGLE i en indstillingsfil.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window er til indstillingsfiler</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>har flere tilstande; vælg en med --window</translation>
    </message>
</context>
</TS>
