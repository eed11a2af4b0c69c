<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Ingen oppsett er aktive.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; er aktivt.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Et klikk går til neste oppsett.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Neste oppsett</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Forrige oppsett</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Forskjeller fra vinduene nå:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Snarveiplass:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Forskjeller fra vinduene nå</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Bilde av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Ingen. Vinduene ser ut som i dette oppsettet.</translation>
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
        <translation>Skriver alle oppsett til en fil</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Erstatter alle oppsett med dem fra en fil</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Legger til oppsettene fra en fil og erstatter dem med samme navn</translation>
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
        <translation>Ditt med samme navn:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importer oppsett</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Oppsett i &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Oppsettene i filen</translation>
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
        <translation>&amp;Erstatt ditt</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Hopp over</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Velg alle</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Velg &amp;ingen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>I&amp;mporter</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Bilde av &quot;%1&quot; i filen</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Bilde av ditt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Navnet er opptatt:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Erstatter oppsettet ditt med dette navnet</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Legges til som &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Legges til</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Du har det allerede</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Importeres ikke, navnet er opptatt</translation>
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
        <translation>Oppsettene i %1 er fra en annen versjon av dette programmet. De forblir uendret.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Den er skadet.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Noen av oppsettene i %1 er skadet og ble utelatt.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Den er fra en annen versjon av dette programmet, eller skadet.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Oppsettene kunne ikke lagres i %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Filen med oppsettene dine, %1, kan ikke leses. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Den beholdes som %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Den forblir uendret, og oppsett lagres ikke så lenge programmet kjører.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Behandle &amp;oppsett...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Gi &quot;%1&quot; det nye navnet &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Slett &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Slett oppsett</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Dupliser &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Dupliser oppsett</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Flytt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Flytt oppsett</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importert fra &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Eksportert til &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Oppsett</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gjør om</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Bytt</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Gi nytt navn</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Dupliser</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;lett</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Flytt &amp;opp</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Flytt &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksporter...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Flytt &amp;til gruppe</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Ordner vinduene som i det valgte oppsettet</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Plass %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>endret</translation>
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
        <translation>Det finnes ingen oppsett ennå. Lagre et i menyen &quot;Oppsett&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Lås oppsettet</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Ingenting kan flyttes, løsnes eller lukkes ved et uhell</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Lagre oppsettet</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Lagre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Tilbake til oppsettet</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tilbake til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>og mer</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Navn på oppsettet</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nytt navn, deretter Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Navn på det nye oppsettet</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Et oppsett trenger et navn: skriv inn et navn og trykk på Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Bruk snarveier</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 til %2 bytter til oppsettene som disse tastene er tildelt</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Tom plass %1</translation>
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
        <translation>Oppsettene ble eksportert til &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>filen inneholder ingen oppsett</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; ble ikke importert: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; har ingen oppsett for dette programmet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; kan ikke leses.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Oppsettene fra &quot;%1&quot; ble importert.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Oppsettene fra &quot;%1&quot; ble importert; skadede deler ble utelatt.</translation>
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
        <translation>høyre</translation>
    </message>
    <message>
        <source>top</source>
        <translation>øverst</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>nederst</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(uten navn)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 er ikke lenger en fane</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Fanen %1 er nå fremst</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 er nå en fane ved siden av %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 ble flyttet på skrivebordet</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 er nå et eget vindu</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 er ikke lenger et eget vindu</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 er nå ved siden av naboene</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 er nå over eller under naboene</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 har en annen plass blant naboene</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 ble flyttet fra linje %2 til linje %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 ble lagt til</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 ble fjernet</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 ble flyttet fra %2 til %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 er åpen</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 er lukket</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 endret størrelse fra %2 til %3</translation>
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
        <translation>Gi &quot;%1&quot; det nye navnet &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Opprett &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Slett &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Lagre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Endre rekkefølgen på oppsett</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Bytt til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Bytt til gruppen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tilbake til &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Endre oppsett</translation>
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
        <translation>Ingenting i &quot;%1&quot; kan importeres: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Skadet og derfor utelatt: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Uten de skadde delene: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Fra grupper som dette programmet ikke har, og derfor utelatt: %1.</translation>
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
        <translation>&quot;%1&quot; er ikke rotelementet &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; mangler i &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; mangler attributtet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; har det ukjente attributtet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; kan ikke være &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Det kan ikke være tekst i &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Tilstanden i &quot;%1&quot; har ikke et partall av sifre</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Et oppsett trenger et navn.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Et navn kan ikke inneholde kontrolltegn.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Det finnes allerede et oppsett med dette navnet.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Filen er større enn grensen på %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Dette er ikke en vanlig fil</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Filen er tom</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Det er ingen oppsett i filen</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Det dokkbare vinduet &quot;%1&quot; har ikke noe objektnavn.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Flere dokkbare vinduer har objektnavnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Verktøylinjen &quot;%1&quot; har ikke noe objektnavn.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Flere verktøylinjer har objektnavnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Det dokkbare vinduet &quot;%1&quot; er ikke i noen av vinduets områder.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Vinduet &quot;%1&quot; har ikke noe sentralt element.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Oppsett</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Oppsett</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Dokkbare vinduer er på en side som ikke finnes</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Tilstanden er skadet</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dokkbare vinduer er nøstet for dypt</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Tilstanden beskriver mer enn et vindu kan ha</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokumentet er skadet: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Dokumentet er ikke et oppsettsdokument: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokumentet har den ukjente versjonen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Dette er ikke tilstanden til et vindu</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Et oppsett har ikke noe navn</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Flere oppsett har navnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Et dokkbart vindu eller en verktøylinje har ikke noe navn</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Flere dokkbare vinduer eller verktøylinjer har navnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Sammenslåing har gjentatt dokkbare vinduer eller verktøylinjer</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokkbare vinduer flyter som faner; ved sammenslåing av denne tilstanden går verktøylinjene tapt</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Verktøylinjer er på en side som ikke finnes</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Angre: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gjør om</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Gjør om: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Vis knappen i en verktøylinje</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Oppsett</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>kommandoen &quot;%1&quot; finnes ikke</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>kommandoen &quot;%1&quot; finnes ikke; se &quot;panorel help&quot;</translation>
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
        <translation>Skriver ikke ut noe.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Skriver ut JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>gruppen &quot;%1&quot; finnes ikke; disse finnes: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>oppsettet &quot;%1&quot; finnes ikke; disse finnes: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>vinduet &quot;%1&quot; finnes ikke; disse finnes: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view og --current utelukker hverandre</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ingen</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Bare denne gruppen.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Bare dette oppsettet.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Bare det gjeldende oppsettet i en gruppe.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Bare dette vinduet; i en innstillingsfil: tilstanden under SEKSJON/NØKKEL.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>har verken grupper eller navngitte oppsett</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>er tilstanden til ett vindu, som ikke har noen ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Viser denne hjelpen.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Viser versjonen.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>en fil mangler</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>for mange filer</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 er oppgitt mer enn én gang</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>valget %1 mangler</translation>
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
        <translation>Forteller om vinduer trygt kan få oppsettene i filer.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Forteller hva som står i oppsettene i en fil.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Forteller hva som skiller oppsett fra hverandre.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Tegner et oppsett som bilde, PNG eller SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Utelater det sammenslåing har gjentatt, og oppsett uten navn.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopierer oppsett fra ett dokument til et annet.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Gir nytt navn til et oppsett, eller til et vindu i alle oppsett.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Flytter et oppsett til en annen plass i gruppen.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Fjerner oppsett fra et dokument.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Bruk: panorel KOMMANDO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help KOMMANDO&quot; forteller hvordan en kommando brukes. En FILE er et oppsettsdokument, tilstanden til ett vindu eller en innstillingsfil som inneholder slike tilstander; &quot;-&quot; er standard inndata.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Starter et Qt 5-program med en meny for oppsettene av vinduene.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Lar skrivebordet starte et program med &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>kan ikke skrive til standard utdata</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>har flere oppsett; velg ett med --group og --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Bare i %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Ingen forskjell</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Skriver ut JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Sammenligner oppsettet fra --view med dette, fra samme fil hvis B mangler.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>det er ingenting å sammenligne med</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Filen som skal skrives; &quot;-&quot; er standard utdata.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UTFIL</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Gruppen til oppsettet.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAVN</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Oppsettet.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>valget %1 mangler; disse finnes: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Erstatter oppsett med navn som allerede finnes.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopierer oppsett under et annet navn når navnet allerede finnes.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace og --keep-both utelukker hverandre</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Vinduet som skal få nytt navn i alle oppsett.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Det nye navnet.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>et vindu får nytt navn i alle oppsett</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Oppsettet det skal flyttes foran.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ANNET</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Flytter det bak alle andre.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>enten --before eller --last er nødvendig</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 trenger et tall</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>inneholder ikke noe oppsett</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(uten navn)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(gjeldende oppsett)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(verktøylinjer)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Leser filer opptil denne størrelsen i MiB, %1 hvis den ikke er oppgitt; 0 opphever grensen.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>er ikke et oppsettsdokument</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>skrives helt på nytt på grunn av dokumenttypen eller tegnkodingen</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>er skadet</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 er skadet</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kan ikke leses</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>det finnes ingen slik programstarter</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>starter ikke noe program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>starter et program med sitt eget Qt, som ikke laster programtillegg</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>er en programstarter du selv har laget, og forblir som den er</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lar verktøylinjene være som de er når oppsettet byttes.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Fjerner programstarteren igjen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Vindusoppsett</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size trenger en bredde og en høyde på opptil %1 piksler, for eksempel 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>bildet er for stort; velg ett vindu med --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>bildet er for stort</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Bildet som skal skrives: SVG hvis navnet slutter på &quot;.svg&quot;, ellers PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UTFIL</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Størrelsen på hvert vindu i piksler; vinduets egen, høyst %1 bred, hvis den ikke er oppgitt.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Tegner i mørke farger.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>inneholder ikke tilstanden til et vindu</translation>
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
        <translation>Lar verktøylinjene være som de er når oppsettet byttes.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Viser hvilke programmer som har oppsett, og starter ingen.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list tar ikke noe program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>et program mangler</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>programtillegget er ikke installert (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Vindu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Brukerdata: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Gruppe &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Oppsett &quot;%1&quot; (aktivt)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Oppsett &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Gjeldende oppsett</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Verktøylinjer da dokumentet ble skrevet</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Skriver ut JSON.</translation>
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
        <translation>høyre</translation>
    </message>
    <message>
        <source>top</source>
        <translation>øverst</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>nederst</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(uten navn)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>ved %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(fremst)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Faner:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Venstre:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Høyre:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Øverst:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Nederst:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>På en side som ikke finnes:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flytende:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Lukket:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flytende)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(skjult)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Verktøylinjer, %1, linje %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Ikke tilstanden til et vindu, eller skadet (størrelse: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Sentralt område: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Verken dokkbare vinduer eller verktøylinjer</translation>
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
        <translation>utelatt: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>en tilstand skrives ikke over innstillingsfilen sin</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Skriver til denne filen og ikke til standard utdata.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UTFIL</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Beholder oppsett uten navn.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Utelater tilstander som ikke er i orden, og sier fra om det.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Tilstanden under SEKSJON/NØKKEL i en innstillingsfil.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window er for innstillingsfiler</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>har flere tilstander; velg én med --window</translation>
    </message>
</context>
</TS>
