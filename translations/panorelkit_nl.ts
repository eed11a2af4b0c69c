<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Geen indeling is actief.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; is actief.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Een klik gaat naar de volgende indeling.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Volgende indeling</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Vorige &amp;indeling</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Verschillen met de huidige vensters:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Plaats van de sneltoets:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Verschillen met de huidige vensters</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Afbeelding van &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Geen. De vensters zien eruit als deze indeling.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
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
        <translation>Schrijft alle indelingen naar een bestand</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Vervangt alle indelingen door die van een bestand</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Voegt de indelingen van een bestand toe, in plaats van die met dezelfde naam</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Groep</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>De uwe met dezelfde naam:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Indelingen importeren</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Indelingen in &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Indelingen van het bestand</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>In het bestand:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Beide behouden</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;De uwe vervangen</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Overslaan</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Niets selecteren</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>I&amp;mporteren</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Afbeelding van &quot;%1&quot; in het bestand</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Afbeelding van uw &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>De naam is al in gebruik:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Vervangt uw indeling met deze naam</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Toegevoegd als &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>U hebt deze al</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Niet geïmporteerd, de naam is in gebruik</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Niet geïmporteerd</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>De indelingen in %1 zijn van een andere versie van dit programma. Ze blijven zoals ze zijn.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Het is beschadigd.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Sommige indelingen in %1 zijn beschadigd en zijn weggelaten.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Het is van een andere versie van dit programma of is beschadigd.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>De indelingen konden niet worden opgeslagen in %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Het bestand met uw indelingen, %1, kan niet worden gelezen. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Het wordt bewaard als %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Het blijft zoals het is, en in deze sessie worden geen indelingen opgeslagen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Indelingen &amp;beheren...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; hernoemen naar &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; verwijderen</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Indelingen verwijderen</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; dupliceren</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Indelingen dupliceren</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; verplaatsen</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Indelingen verplaatsen</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importeren</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Geïmporteerd uit &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Geëxporteerd naar &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Indelingen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Activeren</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Hernoemen</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Dupliceren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>V&amp;erwijderen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Omhoog</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>O&amp;mlaag</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporteren...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>&amp;Naar groep verplaatsen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importeren...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Schikt de vensters zoals in de gekozen indeling</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Plaats %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>gewijzigd</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Actief</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Er zijn nog geen indelingen. Sla er een op in het menu &quot;Indelingen&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>I&amp;ndeling vergrendelen</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Niets kan per ongeluk worden verplaatst, losgemaakt of gesloten</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Indeling opslaan</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; opslaan</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Terug naar indeling</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Terug naar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>en meer</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Naam van de indeling</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nieuwe naam, daarna Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Naam van de nieuwe indeling</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Een indeling heeft een naam nodig: typ er een en druk op Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Sneltoetsen gebruiken</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 tot en met %2 activeren de indelingen waaraan deze toetsen zijn toegekend</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Lege plaats %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; is geen bestand.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>De indelingen zijn geëxporteerd naar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>het bevat geen indelingen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; is niet geïmporteerd: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; bevat geen indelingen voor dit programma.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>De indelingen uit &quot;%1&quot; zijn geïmporteerd.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>De indelingen uit &quot;%1&quot; zijn geïmporteerd; beschadigde delen zijn weggelaten.</translation>
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
        <translation>boven</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>onder</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(zonder naam)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 is geen tabblad meer</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Het tabblad %1 staat nu vooraan</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 is nu een tabblad naast %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 is op het bureaublad verplaatst</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 is nu een eigen venster</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 is geen eigen venster meer</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 staat nu naast de buren</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 staat nu boven of onder de buren</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 heeft een andere plaats tussen de buren</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 is van regel %2 naar regel %3 verplaatst</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 is toegevoegd</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 is verwijderd</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 is van %2 naar %3 verplaatst</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 is geopend</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 is gesloten</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>De grootte van %1 is veranderd van %2 in %3</translation>
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
        <translation>&quot;%1&quot; hernoemen naar &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; aanmaken</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; verwijderen</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; opslaan</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Indelingen anders ordenen</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Naar &quot;%1&quot; gaan</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Naar groep &quot;%1&quot; gaan</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Terug naar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Indelingen wijzigen</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importeren</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Uit &quot;%1&quot; kan niets worden geïmporteerd: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Beschadigd en daarom weggelaten: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Zonder de beschadigde delen: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Uit groepen die dit programma niet heeft en daarom weggelaten: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; kan hier niet staan in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; is niet het hoofdelement &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; ontbreekt in &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>In &quot;%2&quot; ontbreekt het attribuut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; heeft het onbekende attribuut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; kan niet &quot;%1&quot; zijn</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>In &quot;%1&quot; kan geen tekst staan</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>De toestand in &quot;%1&quot; heeft geen even aantal cijfers</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Een indeling heeft een naam nodig.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Een naam kan geen besturingstekens bevatten.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Er bestaat al een indeling met deze naam.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Het bestand is groter dan de limiet van %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Dit is geen gewoon bestand</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Het bestand is leeg</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Er staan geen indelingen in het bestand</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Het dokpaneel &quot;%1&quot; heeft geen objectnaam.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Meerdere dokpanelen hebben de objectnaam &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>De werkbalk &quot;%1&quot; heeft geen objectnaam.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Meerdere werkbalken hebben de objectnaam &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Het dokpaneel &quot;%1&quot; staat in geen van de gebieden van het venster.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Het venster &quot;%1&quot; heeft geen centraal widget.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Indelingen</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Indelingen</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Er staan dokpanelen aan een zijde die niet bestaat</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>De toestand is beschadigd</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Dokpanelen zijn te diep genest</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>De toestand beschrijft meer dan een venster kan hebben</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Het document is beschadigd: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Het document is geen indelingsdocument: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Het document heeft de onbekende versie &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Dit is niet de toestand van een venster</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Een indeling heeft geen naam</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Meerdere indelingen hebben de naam &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Een dokpaneel of werkbalk heeft geen naam</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Meerdere dokpanelen of werkbalken hebben de naam &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Bij het samenvoegen zijn dokpanelen of werkbalken herhaald</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokpanelen zweven als tabbladen; bij het samenvoegen van deze toestand gaan de werkbalken ervan verloren</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Er staan werkbalken aan een zijde die niet bestaat</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Opnieuw: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Knop in een werkbalk tonen</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Indelingen</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>er is geen opdracht &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>er is geen opdracht &quot;%1&quot;; zie &quot;panorel help&quot;</translation>
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
        <translation>document</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>in orde</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Toont niets.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Toont JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>er is geen groep &quot;%1&quot;; aanwezig: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>er is geen indeling &quot;%1&quot;; aanwezig: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>er is geen venster &quot;%1&quot;; aanwezig: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view en --current sluiten elkaar uit</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Alleen deze groep.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Alleen deze indeling.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Alleen de werkindeling van een groep.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Alleen dit venster; in een instellingenbestand de toestand bij SECTIE/SLEUTEL.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>heeft geen groepen en geen benoemde indelingen</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>is de toestand van één venster, dat geen ID heeft</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Toont deze hulp.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Toont de versie.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>er ontbreekt een bestand</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>te veel bestanden</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 is meer dan eens opgegeven</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>de optie %1 ontbreekt</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; zie &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Meldt of vensters de indelingen van bestanden zonder schade kunnen krijgen.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Meldt wat er in de indelingen van een bestand staat.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Meldt waarin indelingen verschillen.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Tekent een indeling als afbeelding, PNG of SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Laat weg wat bij het samenvoegen is herhaald, en indelingen zonder naam.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopieert indelingen van het ene document naar het andere.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Hernoemt een indeling, of een venster in alle indelingen.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Verplaatst een indeling naar een andere plaats in de groep.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Verwijdert indelingen uit een document.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Gebruik: panorel OPDRACHT ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help OPDRACHT&quot; vertelt hoe een opdracht wordt gebruikt. Een FILE is een indelingsdocument, de toestand van één venster of een instellingenbestand dat zulke toestanden bevat; &quot;-&quot; is de standaardinvoer.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Start een Qt 5-programma met een menu voor de indelingen van de vensters.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Laat het bureaublad een programma starten met &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>kan niet naar de standaarduitvoer schrijven</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>heeft meerdere indelingen; kies er een met --group en --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Alleen in %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Geen verschil</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Toont JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Vergelijkt de indeling van --view met deze, uit hetzelfde bestand als B ontbreekt.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>er is niets om mee te vergelijken</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Het te schrijven bestand; &quot;-&quot; is de standaarduitvoer.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UITVOER</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>De groep van de indeling.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>De indeling.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>de optie %1 ontbreekt; aanwezig: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Vervangt indelingen waarvan de naam al bestaat.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopieert indelingen onder een andere naam als hun naam al bestaat.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace en --keep-both sluiten elkaar uit</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Het venster dat in alle indelingen wordt hernoemd.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>De nieuwe naam.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>een venster wordt in alle indelingen hernoemd</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>De indeling waarvoor deze wordt geplaatst.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ANDERE</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Plaatst deze na alle andere.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>--before of --last is nodig</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 heeft een getal nodig</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>bevat geen indeling</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(zonder naam)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(werkindeling)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(werkbalken)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Leest bestanden tot deze grootte in MiB, %1 indien niet opgegeven; 0 heft de limiet op.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>is geen indelingsdocument</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>wordt in zijn geheel opnieuw geschreven vanwege het documenttype of de codering</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>is beschadigd</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 is beschadigd</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kan niet worden gelezen</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>deze starter bestaat niet</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>start geen programma</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>start een programma met een eigen Qt, dat geen plug-ins laadt</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>is een zelfgemaakte starter en blijft zoals hij is</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Laat werkbalken zoals ze zijn bij het wisselen van indeling.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Verwijdert de starter weer.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Vensterindeling</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size heeft een breedte en een hoogte van hoogstens %1 pixels nodig, zoals 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>de afbeelding is te groot; kies een venster met --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>de afbeelding is te groot</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>De te schrijven afbeelding: SVG als de naam op &quot;.svg&quot; eindigt, anders PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UITVOER</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Grootte van elk venster in pixels; indien niet opgegeven de eigen grootte, hoogstens %1 breed.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>BxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Tekent in donkere kleuren.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>bevat geen toestand van een venster</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>kan niet worden gestart</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Laat werkbalken zoals ze zijn bij het wisselen van indeling.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Toont welke programma&apos;s indelingen hebben, zonder er een te starten.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list heeft geen programma nodig</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>er ontbreekt een programma</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>de plug-in is niet geïnstalleerd (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Venster &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Gebruikersgegevens: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Groep &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Indeling &quot;%1&quot; (actief)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Indeling &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Werkindeling</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Werkbalken op het moment van schrijven</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Toont JSON.</translation>
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
        <translation>boven</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>onder</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(zonder naam)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>op %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(vooraan)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Tabbladen:</translation>
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
        <translation>Boven:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Onder:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Aan een zijde die niet bestaat:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Zwevend:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Gesloten:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(zwevend)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(verborgen)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Werkbalken, %1, regel %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Niet de toestand van een venster, of beschadigd (grootte: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Centraal gebied: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Geen dokpanelen en geen werkbalken</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>is niet in orde; zie &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>weggelaten: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>een toestand wordt niet over zijn instellingenbestand geschreven</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Schrijft naar dit bestand en niet naar de standaarduitvoer.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>UITVOER</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Behoudt indelingen zonder naam.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Laat toestanden weg die niet in orde zijn en meldt dat.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>De toestand bij SECTIE/SLEUTEL van een instellingenbestand.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window is voor instellingenbestanden</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>heeft meerdere toestanden; kies er een met --window</translation>
    </message>
</context>
</TS>
