<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Ingen layout är aktiv.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; är aktiv.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Ett klick går till nästa layout.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Nästa layout</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Föregående layout</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Skillnader mot fönstren nu:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Genvägsplats:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Skillnader mot fönstren nu</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Bild av &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Inga. Fönstren ser ut som i denna layout.</translation>
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
        <translation>Skriver alla layouter till en fil</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Ersätter alla layouter med dem i en fil</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Lägger till layouterna i en fil, i stället för dem med samma namn</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupp</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Din med samma namn:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importera layouter</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Layouter i &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Filens layouter</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>I filen:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Behåll båda</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Ersätt din</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Hoppa över</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Markera alla</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Markera &amp;ingen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Im&amp;portera</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Bild av &quot;%1&quot; i filen</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Bild av din &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Namnet är upptaget:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Ersätter din layout med detta namn</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Läggs till som &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Läggs till</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Du har den redan</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Importeras inte, namnet är upptaget</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Importeras inte</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Layouterna i %1 är från en annan version av det här programmet. De förblir som de är.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Den är skadad.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Några av layouterna i %1 är skadade och har utelämnats.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Den är från en annan version av det här programmet, eller skadad.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Layouterna kunde inte sparas i %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Filen med dina layouter, %1, kan inte läsas. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Den behålls som %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Den förblir som den är, och layouter sparas inte den här gången.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Hantera layouter...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Byt namn på &quot;%1&quot; till &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Ta bort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Ta bort layouter</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplicera &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplicera layouter</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Flytta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Flytta layouter</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importera &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importerat från &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exporterat till &quot;%1&quot;: %2</translation>
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
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Växla</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Byt namn</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Duplicera</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Flytta upp</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Flytta &amp;ner</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportera...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>F&amp;lytta till grupp</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importera...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Ordnar fönstren som i den valda layouten</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Plats %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>ändrad</translation>
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
        <translation>Det finns inga layouter ännu. Spara en i menyn &quot;Layouter&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Lås layouten</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Inget kan flyttas, lösgöras eller stängas av misstag</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Spara layouten</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Spara &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Tillbaka till layouten</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tillbaka till &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>och mer</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Layoutens namn</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nytt namn, sedan Retur</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Namn på den nya layouten</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>En layout behöver ett namn: skriv ett och tryck sedan på Retur.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Använd genvägar</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 till %2 växlar till de layouter som har tilldelats dessa tangenter</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Tom plats %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; är inte en fil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; kan inte skrivas: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Layouterna exporterades till &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>den innehåller inga layouter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; importerades inte: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; innehåller inga layouter för det här programmet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; kan inte läsas.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Layouterna i &quot;%1&quot; importerades.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Layouterna i &quot;%1&quot; importerades; skadade delar utelämnades.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>vänster</translation>
    </message>
    <message>
        <source>right</source>
        <translation>höger</translation>
    </message>
    <message>
        <source>top</source>
        <translation>överkant</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>nederkant</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(utan namn)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 är inte längre en flik</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Fliken %1 är nu överst</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 är nu en flik bredvid %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 har flyttats på skrivbordet</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 är nu ett eget fönster</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 är inte längre ett eget fönster</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 är nu bredvid sina grannar</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 är nu ovanför eller nedanför sina grannar</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 har en annan plats bland sina grannar</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 har flyttats från rad %2 till rad %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 har lagts till</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 har tagits bort</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 har flyttats från %2 till %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 är öppen</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 är stängd</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 har ändrat storlek från %2 till %3</translation>
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
        <translation>Byt namn på &quot;%1&quot; till &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Skapa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Ta bort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Spara &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Ändra layouternas ordning</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Växla till &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Växla till gruppen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Tillbaka till &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Ändra layouter</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importera &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Inget i &quot;%1&quot; kan importeras: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Skadat och därför utelämnat: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Utan sina skadade delar: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Från grupper som programmet inte har och därför utelämnat: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; kan inte stå här i &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; är inte roten &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; saknas i &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; saknar attributet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; har det okända attributet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; kan inte vara &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Det kan inte finnas text i &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Tillståndet i &quot;%1&quot; har inte ett jämnt antal siffror</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>En layout behöver ett namn.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Ett namn kan inte innehålla styrtecken.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Det finns redan en layout med detta namn.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Filen är större än gränsen på %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Det här är inte en vanlig fil</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Filen är tom</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Det finns inga layouter i filen</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Dockningspanelen &quot;%1&quot; har inget objektnamn.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Flera dockningspaneler har objektnamnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Verktygsraden &quot;%1&quot; har inget objektnamn.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Flera verktygsrader har objektnamnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Dockningspanelen &quot;%1&quot; är inte i något av fönstrets områden.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Fönstret &quot;%1&quot; har ingen central komponent.</translation>
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
        <translation>Dockningspaneler är på en sida som inte finns</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Tillståndet är skadat</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dockningspaneler är nästlade för djupt</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Tillståndet beskriver mer än ett fönster kan ha</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Dokumentet är skadat: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Dokumentet är inte ett layoutdokument: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Dokumentet har den okända versionen &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Det här är inte ett fönsters tillstånd</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>En layout har inget namn</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Flera layouter har namnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>En dockningspanel eller verktygsrad har inget namn</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Flera dockningspaneler eller verktygsrader har namnet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Sammanslagning har upprepat dockningspaneler eller verktygsrader</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dockningspaneler flyter som flikar; när det här tillståndet slås samman går dess verktygsrader förlorade</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Verktygsrader är på en sida som inte finns</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Ångra: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Gör om: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Visa knappen i en verktygsrad</translation>
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
        <translation>det finns inget kommando &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>det finns inget kommando &quot;%1&quot;; se &quot;panorel help&quot;</translation>
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
        <translation>i ordning</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Skriver inte ut något.</translation>
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
        <translation>det finns ingen grupp &quot;%1&quot;; de som finns: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>det finns ingen layout &quot;%1&quot;; de som finns: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>det finns inget fönster &quot;%1&quot;; de som finns: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view och --current utesluter varandra</translation>
    </message>
    <message>
        <source>none</source>
        <translation>inga</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Endast den här gruppen.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Endast den här layouten.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Endast en grupps arbetslayout.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Endast det här fönstret; i en inställningsfil tillståndet vid AVSNITT/NYCKEL.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>har varken grupper eller namngivna layouter</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>är tillståndet för ett enda fönster, som inte har något id</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Visar den här hjälpen.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Visar versionen.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>en fil saknas</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>för många filer</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 är angiven mer än en gång</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>flaggan %1 saknas</translation>
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
        <translation>Talar om ifall fönster kan få filers layouter utan skada.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Talar om vad layouterna i en fil innehåller.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Talar om vad som skiljer layouter åt.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Ritar en layout som bild, PNG eller SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Utelämnar det som sammanslagning har upprepat, och layouter utan namn.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopierar layouter från ett dokument till ett annat.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Byter namn på en layout, eller på ett fönster i alla layouter.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Flyttar en layout till en annan plats i dess grupp.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Tar bort layouter ur ett dokument.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Användning: panorel KOMMANDO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help KOMMANDO&quot; talar om hur ett kommando används. En FILE är ett layoutdokument, ett fönsters tillstånd eller en inställningsfil som innehåller sådana tillstånd; &quot;-&quot; är standard in.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Startar ett Qt 5-program med en meny för fönstrens layouter.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Låter skrivbordet starta ett program med &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>kan inte skriva till standard ut</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>har flera layouter; välj en med --group och --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Endast i %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Ingen skillnad</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Skriver ut JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Jämför layouten för --view med den här, ur samma fil om B saknas.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>det finns inget att jämföra med</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Filen som ska skrivas; &quot;-&quot; är standard ut.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UT</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Layoutens grupp.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Layouten.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>flaggan %1 saknas; de som finns: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Ersätter layouter vars namn redan finns.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopierar layouter under ett annat namn om deras eget redan finns.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace och --keep-both utesluter varandra</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Fönstret som ska byta namn i alla layouter.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Det nya namnet.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>ett fönster byter namn i alla layouter</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Layouten som den ska flyttas framför.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ANNAN</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Flyttar den efter alla andra.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>antingen --before eller --last behövs</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 behöver ett tal</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>innehåller ingen layout</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(utan namn)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(arbetslayout)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(verktygsrader)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Läser filer upp till den här storleken i MiB, %1 om den inte anges; 0 tar bort gränsen.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>är inte ett layoutdokument</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>skrivs om i sin helhet på grund av dokumenttypen eller teckenkodningen</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>är skadad</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 är skadad</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kan inte läsas</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>det finns ingen sådan programstartare</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>startar inget program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>startar ett program med eget Qt, som inte läser in insticksmoduler</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>är en programstartare som du själv har skapat och lämnas som den är</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lämnar verktygsraderna som de är när layouten byts.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Tar bort programstartaren igen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Fönsterlayout</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size behöver en bredd och en höjd på högst %1 bildpunkter, till exempel 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>bilden är för stor; välj ett fönster med --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>bilden är för stor</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Bilden som ska skrivas: SVG om namnet slutar på &quot;.svg&quot;, annars PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UT</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Storlek på varje fönster i bildpunkter; dess egen, högst %1 bred, om den inte anges.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Ritar i mörka färger.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>innehåller inget fönstertillstånd</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>kan inte startas</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lämnar verktygsraderna som de är när layouten byts.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Visar vilka program som har layouter och startar inget.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list tar inget program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>ett program saknas</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>insticksmodulen är inte installerad (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Fönster &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Användardata: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grupp &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Layout &quot;%1&quot; (aktiv)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Layout &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Arbetslayout</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Verktygsrader när dokumentet skrevs</translation>
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
        <translation>vänster</translation>
    </message>
    <message>
        <source>right</source>
        <translation>höger</translation>
    </message>
    <message>
        <source>top</source>
        <translation>överkant</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>nederkant</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(utan namn)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>vid %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(överst)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Flikar:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Vänster:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Höger:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Överkant:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Nederkant:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>På en sida som inte finns:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flytande:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Stängda:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flytande)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(dold)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Verktygsrader, %1, rad %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Inte ett fönsters tillstånd, eller skadat (storlek: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Centralt område: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Varken dockningspaneler eller verktygsrader</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>är inte i ordning; se &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>utelämnade %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>ett tillstånd skrivs inte över sin inställningsfil</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Skriver den här filen i stället för till standard ut.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UT</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Behåller layouter utan namn.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Utelämnar tillstånd som inte är i ordning och talar om det.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Tillståndet vid AVSNITT/NYCKEL i en inställningsfil.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window är för inställningsfiler</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>har flera tillstånd; välj ett med --window</translation>
    </message>
</context>
</TS>
