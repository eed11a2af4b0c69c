<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Mikään asettelu ei ole käytössä.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; on käytössä.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Napsautus siirtyy seuraavaan asetteluun.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Seuraava asettelu</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Edellinen asettelu</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Erot nykyisiin ikkunoihin:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Pikanäppäimen paikka:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Erot nykyisiin ikkunoihin</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Kuva: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Ei mitään. Ikkunat ovat tämän asettelun mukaiset.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ei mitään</translation>
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
        <translation>Kirjoittaa kaikki asettelut tiedostoon</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Korvaa kaikki asettelut tiedoston asetteluilla</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Lisää tiedoston asettelut ja korvaa samannimiset</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Ryhmä</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Oma samanniminen:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Tuo asetteluja</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Asettelut tiedostossa &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Tiedoston asettelut</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Tiedostossa:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Säilytä molemmat</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Korvaa oma</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ohita</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Valitse kaikki</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>Älä valitse &amp;mitään</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Tuo</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Kuva tiedoston asettelusta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Kuva omasta asettelusta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Nimi on jo käytössä:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Korvaa oman tämännimisen asettelun</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Lisätään nimellä &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Lisätään</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Asettelu on jo olemassa</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Ei tuoda, nimi on jo käytössä</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Ei tuoda</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Tiedoston %1 asettelut ovat tämän ohjelman toisesta versiosta. Ne säilyvät ennallaan.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Se on vioittunut.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Osa tiedoston %1 asetteluista on vioittunut, ja ne jätettiin pois.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Se on tämän ohjelman toisesta versiosta tai vioittunut.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Asetteluja ei voitu tallentaa kohteeseen %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Asettelutiedostoa %1 ei voi lukea. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Se säilytetään nimellä %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Se säilyy ennallaan, eikä asetteluja tallenneta tällä käyttökerralla.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Hallitse asetteluja...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Nimeä &quot;%1&quot; uudelleen: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Poista &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Poista asetteluja</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Monista &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Monista asetteluja</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Siirrä &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Siirrä asetteluja</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Tuo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Tuotu tiedostosta &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Viety tiedostoon &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Asettelut</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Kumoa</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Tee uudelleen</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Vaihda</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Nimeä uudelleen</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Monista</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>P&amp;oista</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Siirrä ylös</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Siirrä &amp;alas</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>V&amp;ie...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Siirrä &amp;ryhmään</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Tuo...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Järjestää ikkunat valitun asettelun mukaan</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Paikka %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>muutettu</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Käytössä</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Asetteluja ei vielä ole. Tallenna asettelu valikossa &quot;Asettelut&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Lukitse asettelu</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Mitään ei voi siirtää, irrottaa tai sulkea vahingossa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Tallenna asettelu</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Tallenna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Palaa asetteluun</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Palaa asetteluun &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>ja muuta</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Asettelun nimi</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Uusi nimi, sitten Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Uuden asettelun nimi</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Asettelu tarvitsee nimen: kirjoita nimi ja paina Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Käytä pikanäppäimiä</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1–%2 vaihtavat asetteluihin, joille nämä näppäimet on annettu</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Tyhjä paikka %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; ei ole tiedosto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Tiedostoa &quot;%1&quot; ei voi kirjoittaa: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Asettelut vietiin tiedostoon &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>tiedostossa ei ole asetteluja</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Tiedostoa &quot;%1&quot; ei tuotu: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>Tiedostossa &quot;%1&quot; ei ole asetteluja tälle ohjelmalle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Tiedostoa &quot;%1&quot; ei voi lukea.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Tiedoston &quot;%1&quot; asettelut tuotiin.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Tiedoston &quot;%1&quot; asettelut tuotiin; vioittuneet osat jätettiin pois.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>vasemmalla</translation>
    </message>
    <message>
        <source>right</source>
        <translation>oikealla</translation>
    </message>
    <message>
        <source>top</source>
        <translation>ylhäällä</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alhaalla</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(nimetön)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 ei ole enää välilehti</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Välilehti %1 on nyt päällimmäisenä</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 on nyt välilehti kohteen %2 vieressä</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 siirtyi työpöydällä</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 on nyt oma ikkunansa</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 ei ole enää oma ikkunansa</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 on nyt naapuriensa vieressä</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 on nyt naapuriensa ylä- tai alapuolella</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 on eri paikassa naapuriensa joukossa</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 siirtyi riviltä %2 riville %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 lisättiin</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 poistettiin</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 siirtyi: %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 on avoinna</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 on suljettu</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1: koko muuttui, %2 → %3</translation>
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
        <translation>Nimeä &quot;%1&quot; uudelleen: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Luo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Poista &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Tallenna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Järjestä asettelut uudelleen</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Vaihda asetteluun &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Vaihda ryhmään &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Palaa asetteluun &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Muuta asetteluja</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Tuo &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Tiedostosta &quot;%1&quot; ei voi tuoda mitään: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Vioittunut, joten jätettiin pois: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Ilman vioittuneita osiaan: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Ryhmistä, joita tässä ohjelmassa ei ole, joten jätettiin pois: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; ei voi olla tässä kohteessa &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; ei ole juurielementti &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; puuttuu kohteesta &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>Kohteesta &quot;%2&quot; puuttuu määrite &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>Kohteessa &quot;%2&quot; on tuntematon määrite &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; ei voi olla &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Kohteessa &quot;%1&quot; ei voi olla tekstiä</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Kohteen &quot;%1&quot; tilassa ei ole parillista määrää numeroita</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Asettelu tarvitsee nimen.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Nimessä ei voi olla ohjausmerkkejä.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Tämänniminen asettelu on jo olemassa.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Tiedosto on suurempi kuin enimmäiskoko %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Tämä ei ole tavallinen tiedosto</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Tiedosto on tyhjä</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Tiedostossa ei ole asetteluja</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Telakoitavalla ikkunalla &quot;%1&quot; ei ole objektinimeä.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Usealla telakoitavalla ikkunalla on objektinimi &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Työkalurivillä &quot;%1&quot; ei ole objektinimeä.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Usealla työkalurivillä on objektinimi &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Telakoitava ikkuna &quot;%1&quot; ei ole millään ikkunan alueella.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Ikkunalla &quot;%1&quot; ei ole keskuselementtiä.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Asettelut</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Asettelut</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Telakoitavia ikkunoita on reunalla, jota ei ole</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Tila on vioittunut</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Telakoitavia ikkunoita on liian monta sisäkkäin</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Tila kuvaa enemmän kuin ikkunassa voi olla</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Asiakirja on vioittunut: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Asiakirja ei ole asetteluasiakirja: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Asiakirjan versio &quot;%1&quot; on tuntematon</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Tämä ei ole ikkunan tila</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Asettelulla ei ole nimeä</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Usealla asettelulla on nimi &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Telakoitavalla ikkunalla tai työkalurivillä ei ole nimeä</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Usealla telakoitavalla ikkunalla tai työkalurivillä on nimi &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Yhdistäminen on toistanut telakoitavia ikkunoita tai työkalurivejä</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Telakoitavat ikkunat kelluvat välilehtinä; tämän tilan työkalurivit menetetään yhdistettäessä</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Työkalurivejä on reunalla, jota ei ole</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Kumoa</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Kumoa: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Tee uudelleen</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Tee uudelleen: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Näytä painike työkalurivillä</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Asettelut</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>komentoa &quot;%1&quot; ei ole</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>komentoa &quot;%1&quot; ei ole; katso &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>tavu %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>asiakirja</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>kunnossa</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Ei tulosta mitään.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Tulostaa JSON-muodossa.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>ryhmää &quot;%1&quot; ei ole; olemassa ovat: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>asettelua &quot;%1&quot; ei ole; olemassa ovat: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>ikkunaa &quot;%1&quot; ei ole; olemassa ovat: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view ja --current sulkevat toisensa pois</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ei yhtään</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Vain tämä ryhmä.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NIMI</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Vain tämä asettelu.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Vain ryhmän nykyinen asettelu.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Vain tämä ikkuna; asetustiedostossa tila kohdassa OSIO/AVAIN.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>TUNNISTE</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>ei sisällä ryhmiä eikä nimettyjä asetteluja</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>on yhden ikkunan tila, eikä sillä ikkunalla ole tunnistetta</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Näyttää tämän ohjeen.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Näyttää version.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>tiedosto puuttuu</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>liian monta tiedostoa</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 on annettu useammin kuin kerran</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>valitsin %1 puuttuu</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; katso &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Kertoo, voiko tiedostojen asettelut antaa ikkunoille vaaratta.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Kertoo, mitä tiedoston asetteluissa on.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Kertoo, miten asettelut eroavat toisistaan.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Piirtää asettelun kuvaksi, PNG tai SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Jättää pois yhdistämisessä toistuneet kohteet ja nimettömät asettelut.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Kopioi asiakirjan asetteluja toiseen.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Nimeää uudelleen asettelun, tai ikkunan kaikissa asetteluissa.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Siirtää asettelun toiseen paikkaan ryhmässään.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Poistaa asetteluja asiakirjasta.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Käyttö: panorel KOMENTO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help KOMENTO&quot; kertoo, miten komentoa käytetään. FILE on asetteluasiakirja, yhden ikkunan tila tai asetustiedosto, jossa on tällaisia tiloja; &quot;-&quot; on vakiosyöte.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Käynnistää Qt 5 -ohjelman, jossa on valikko sen ikkunoiden asetteluille.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Antaa työpöydän käynnistää ohjelman komennolla &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>vakiotulosteeseen ei voi kirjoittaa</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>sisältää useita asetteluja; valitse niistä yksi valitsimilla --group ja --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Vain kohteessa %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Ei eroja</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Tulostaa JSON-muodossa.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Vertaa valitsimen --view asettelua tähän, samasta tiedostosta, jos B puuttuu.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NIMI</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>ei ole mitään, mihin verrata</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Kirjoitettava tiedosto; &quot;-&quot; on vakiotuloste.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>TULOSTE</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Asettelun ryhmä.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NIMI</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Asettelu.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>valitsin %1 puuttuu; olemassa ovat: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Korvaa asettelut, joiden nimet ovat jo olemassa.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Kopioi asettelut toisella nimellä, jos nimi on jo olemassa.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace ja --keep-both sulkevat toisensa pois</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Ikkuna, joka nimetään uudelleen kaikissa asetteluissa.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>TUNNISTE</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Uusi nimi.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>ikkuna nimetään uudelleen kaikissa asetteluissa</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Asettelu, jonka eteen se siirretään.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>TOINEN</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Siirtää sen kaikkien muiden jälkeen.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>joko --before tai --last tarvitaan</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 tarvitsee luvun</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>ei sisällä asettelua</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(nimetön)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(nykyinen asettelu)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(työkalurivit)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Lukee enintään tämän kokoisia tiedostoja (MiB), oletuksena %1; 0 poistaa rajan.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>ei ole asetteluasiakirja</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>kirjoitetaan kokonaan uudelleen dokumenttityypin tai merkistökoodauksen vuoksi</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>on vioittunut</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 on vioittunut</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>ei ole luettavissa</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>tällaista käynnistintä ei ole</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>ei käynnistä mitään ohjelmaa</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>käynnistää ohjelman, jolla on oma Qt, joka ei lataa liitännäisiä</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>on itse tekemäsi käynnistin ja jää ennalleen</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Jättää työkalurivit ennalleen, kun asettelua vaihdetaan.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Poistaa käynnistimen jälleen.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Ikkuna-asettelu</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size tarvitsee enintään %1 kuvapisteen leveyden ja korkeuden, esimerkiksi 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>kuva on liian suuri; valitse yksi ikkuna valitsimella --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>kuva on liian suuri</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Kirjoitettava kuva: SVG, jos nimen loppuna on &quot;.svg&quot;, muuten PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>TULOSTE</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Kunkin ikkunan koko kuvapisteinä; oletuksena ikkunan oma koko, enintään %1 leveänä.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxK</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Piirtää tummin värein.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>ei sisällä ikkunan tilaa</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>ei voi käynnistää</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Jättää työkalurivit ennalleen, kun asettelua vaihdetaan.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Näyttää, millä ohjelmilla on asetteluja, käynnistämättä yhtäkään.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list ei ota ohjelmaa</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>ohjelma puuttuu</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>liitännäistä ei ole asennettu (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Ikkuna &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Käyttäjän tiedot: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Ryhmä &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Asettelu &quot;%1&quot; (käytössä)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Asettelu &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Nykyinen asettelu</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Työkalurivit asiakirjaa kirjoitettaessa</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Tulostaa JSON-muodossa.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>vasemmalla</translation>
    </message>
    <message>
        <source>right</source>
        <translation>oikealla</translation>
    </message>
    <message>
        <source>top</source>
        <translation>ylhäällä</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alhaalla</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(nimetön)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>kohdassa %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(päällimmäisenä)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Välilehdet:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Vasemmalla:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Oikealla:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Ylhäällä:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Alhaalla:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Reunalla, jota ei ole:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Kelluvat:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Suljetut:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(kelluva)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(piilotettu)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Työkalurivit, %1, rivi %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Ei ikkunan tila, tai vioittunut (koko: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Keskusalue: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ei telakoitavia ikkunoita eikä työkalurivejä</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>ei ole kunnossa; katso &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>jätettiin pois: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>tilaa ei kirjoiteta sen asetustiedoston päälle</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Kirjoittaa tähän tiedostoon eikä vakiotulosteeseen.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>TULOSTE</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Säilyttää nimettömät asettelut.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Jättää pois tilat, jotka eivät ole kunnossa, ja ilmoittaa niistä.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Asetustiedoston tila kohdassa OSIO/AVAIN.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>TUNNISTE</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window on asetustiedostoja varten</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>sisältää useita tiloja; valitse niistä yksi valitsimella --window</translation>
    </message>
</context>
</TS>
