<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Nincs aktív elrendezés.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Az aktív elrendezés: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Kattintásra a következő elrendezésre vált.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Következő elrendezés</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Előző elrendezés</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Eltérések a jelenlegi ablakoktól:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Gyorsbillentyű helye:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Eltérések a jelenlegi ablakoktól</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>A(z) &quot;%1&quot; képe</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Nincs. Az ablakok olyanok, mint ebben az elrendezésben.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nincs</translation>
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
        <translation>Minden elrendezést fájlba ír</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Minden elrendezést egy fájl elrendezéseire cserél</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Hozzáadja egy fájl elrendezéseit, az azonos nevűeket lecserélve</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Csoport</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>A saját, azonos nevű:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Elrendezések importálása</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Elrendezések a(z) &quot;%1&quot; fájlban:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>A fájl elrendezései</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>A fájlban:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Mindkettő megtartása</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;A saját lecserélése</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Ö&amp;sszes kijelölése</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>K&amp;ijelölés megszüntetése</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Im&amp;portálás</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>A fájlbeli &quot;%1&quot; képe</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>A saját &quot;%1&quot; képe</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>A név már foglalt:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Lecseréli a saját, ilyen nevű elrendezést</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Hozzáadás &quot;%1&quot; néven</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Már megvan</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Nincs importálás, a név foglalt</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nincs importálás</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>A(z) %1 fájlban lévő elrendezések a program egy másik verziójából származnak. Változatlanok maradnak.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>A fájl sérült.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>A(z) %1 fájlban lévő elrendezések némelyike sérült, ezért kimaradt.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>A fájl a program egy másik verziójából származik, vagy sérült.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Az elrendezéseket nem sikerült menteni ide: %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Az elrendezéseket tartalmazó %1 fájl nem olvasható. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>A fájl ezen a néven marad meg: %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>A fájl változatlan marad, és a program e futása alatt az elrendezések mentése elmarad.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>E&amp;lrendezések kezelése...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>&quot;%1&quot; átnevezése erre: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; törlése</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Elrendezések törlése</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>&quot;%1&quot; kettőzése</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Elrendezések kettőzése</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>&quot;%1&quot; áthelyezése</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Elrendezések áthelyezése</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importálása</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importálva innen: &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportálva ide: &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Elrendezések</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Visszavonás</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ismét</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Váltás</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Á&amp;tnevezés</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Kettőzés</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Tö&amp;rlés</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Mozgatás felfelé</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Mozgatás &amp;lefelé</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportálás...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Áthelyezés &amp;csoportba</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importálás...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>A kijelölt elrendezés szerint rendezi el az ablakokat</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>%1. hely</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>módosítva</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Aktív</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Még nincsenek elrendezések. Mentsen egyet az &quot;Elrendezések&quot; menüben.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>Elrendezés &amp;zárolása</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Semmi sem helyezhető át, választható le vagy zárható be véletlenül</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Elrendezés mentése</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; mentése</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Vissza az elrendezéshez</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Vissza ehhez: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>és egyebek</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Az elrendezés neve</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Új név, majd Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Az új elrendezés neve</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Az elrendezésnek név kell: írjon be egyet, majd nyomja meg az Entert.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Gyorsbillentyűk használata</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 - %2: váltás azokra az elrendezésekre, amelyekhez ezek a billentyűk tartoznak</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>%1. hely üres</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>A(z) &quot;%1&quot; nem fájl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>A(z) &quot;%1&quot; nem írható: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Az elrendezések exportálva ide: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>a fájl nem tartalmaz elrendezést</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>A(z) &quot;%1&quot; nem lett importálva: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>A(z) &quot;%1&quot; nem tartalmaz elrendezést ehhez a programhoz.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>A(z) &quot;%1&quot; nem olvasható.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>A(z) &quot;%1&quot; elrendezései importálva.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>A(z) &quot;%1&quot; elrendezései importálva; a sérült részek kimaradtak.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>bal oldal</translation>
    </message>
    <message>
        <source>right</source>
        <translation>jobb oldal</translation>
    </message>
    <message>
        <source>top</source>
        <translation>felül</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alul</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(név nélkül)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 már nem lap</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Most a(z) %1 lap van elöl</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 most lap %2 mellett</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 elmozdult az asztalon</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 most önálló ablak</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 már nem önálló ablak</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 most a szomszédai mellett van</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 most a szomszédai felett vagy alatt van</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 más helyen van a szomszédai között</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 másik sorba került: %2 → %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 hozzáadva</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 eltávolítva</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 áthelyezve: %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 nyitva van</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 be van zárva</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 mérete megváltozott: %2 → %3</translation>
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
        <translation>&quot;%1&quot; átnevezése erre: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>&quot;%1&quot; létrehozása</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>&quot;%1&quot; törlése</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>&quot;%1&quot; mentése</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Elrendezések átrendezése</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Váltás erre: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Váltás erre a csoportra: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Vissza ehhez: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Elrendezések módosítása</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>&quot;%1&quot; importálása</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>A(z) &quot;%1&quot; fájlból semmi sem importálható: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Sérült, ezért kimaradt: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Sérült részek nélkül: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Olyan csoportból való, amely ebben a programban nincs, ezért kimaradt: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; nem állhat itt a következőben: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; nem a &quot;ViewData&quot; gyökérelem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; hiányzik a következőből: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>A(z) &quot;%2&quot; elemből hiányzik a(z) &quot;%1&quot; attribútum</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>A(z) &quot;%2&quot; elemnek ismeretlen attribútuma van: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Az &quot;Active&quot; értéke nem lehet &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>A(z) &quot;%1&quot; elemben nem lehet szöveg</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>A(z) &quot;%1&quot; elemben lévő állapot számjegyeinek száma nem páros</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Az elrendezésnek név kell.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>A név nem tartalmazhat vezérlőkaraktereket.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Már van ilyen nevű elrendezés.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>A fájl nagyobb a megengedett méretnél (%1)</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Ez nem szabályos fájl</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>A fájl üres</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>A fájlban nincsenek elrendezések</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>A(z) &quot;%1&quot; dokkolható ablaknak nincs objektumneve.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Több dokkolható ablak objektumneve &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>A(z) &quot;%1&quot; eszköztárnak nincs objektumneve.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Több eszköztár objektumneve &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>A(z) &quot;%1&quot; dokkolható ablak az ablak egyik területén sincs.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>A(z) &quot;%1&quot; ablaknak nincs központi felületi eleme.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Elrendezések</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Elrendezések</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Dokkolható ablakok nem létező oldalon vannak</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Az állapot sérült</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>A dokkolható ablakok túl mélyen vannak egymásba ágyazva</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Az állapot többet ír le, mint amennyi egy ablakban lehet</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>A dokumentum sérült: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>A dokumentum nem elrendezéseket tartalmaz: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>A dokumentum verziója ismeretlen: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Ez nem egy ablak állapota</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Egy elrendezésnek nincs neve</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Több elrendezés neve &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Egy dokkolható ablaknak vagy eszköztárnak nincs neve</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Több dokkolható ablak vagy eszköztár neve &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Az egyesítés dokkolható ablakokat vagy eszköztárakat ismételt meg</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Dokkolható ablakok lapokként lebegnek; ennek az állapotnak az egyesítésekor az eszköztárai elvesznek</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Eszköztárak nem létező oldalon vannak</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Visszavonás</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Visszavonás: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ismét</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Ismét: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Gomb megjelenítése eszköztáron</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Elrendezések</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>nincs &quot;%1&quot; parancs</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>nincs &quot;%1&quot; parancs; lásd: &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>%1. bájt</translation>
    </message>
    <message>
        <source>document</source>
        <translation>dokumentum</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>rendben</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Nem ír ki semmit.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON kimenetet ír ki.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>nincs &quot;%1&quot; csoport; a meglévők: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>nincs &quot;%1&quot; elrendezés; a meglévők: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>nincs &quot;%1&quot; ablak; a meglévők: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>a --view és a --current kizárják egymást</translation>
    </message>
    <message>
        <source>none</source>
        <translation>egy sem</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Csak ez a csoport.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÉV</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Csak ez az elrendezés.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Csak egy csoport jelenlegi elrendezése.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Csak ez az ablak; beállításfájlban a SZAKASZ/KULCS alatti állapot.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>AZONOSÍTÓ</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>nem tartalmaz sem csoportokat, sem elnevezett elrendezéseket</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>egyetlen, azonosító nélküli ablak állapota</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Megjeleníti ezt a súgót.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Megjeleníti a verziót.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>hiányzik egy fájl</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>túl sok fájl</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 többször van megadva</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>hiányzik a %1 kapcsoló</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; lásd: &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Megmondja, hogy az ablakok károsodás nélkül megkaphatják-e a fájlok elrendezéseit.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Megmondja, mi áll egy fájl elrendezéseiben.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Megmondja, miben különböznek az elrendezések.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Képként (PNG vagy SVG) megrajzol egy elrendezést.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Kihagyja, amit az egyesítés megismételt, valamint a név nélküli elrendezéseket.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Egy dokumentum elrendezéseit egy másikba másolja.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Átnevez egy elrendezést, vagy egy ablakot minden elrendezésben.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Egy elrendezést a csoportján belül más helyre helyez át.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Elrendezéseket távolít el egy dokumentumból.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Használat: panorel PARANCS ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>A &quot;panorel help PARANCS&quot; elmondja, hogyan kell használni egy parancsot. A FILE elrendezéseket tartalmazó dokumentum, egy ablak állapota vagy ilyen állapotokat tartalmazó beállításfájl; a &quot;-&quot; a szabványos bemenet.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Elindít egy Qt 5-programot az ablakai elrendezéseit tartalmazó menüvel.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Az asztali környezet a(z) &quot;panorel run&quot; paranccsal indítson egy programot.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>nem lehet írni a szabványos kimenetre</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>több elrendezést tartalmaz; válasszon egyet a --group és a --view kapcsolóval</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Csak itt: %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Nincs különbség</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON kimenetet ír ki.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>A --view kapcsolóval megadott elrendezést ezzel hasonlítja össze, ugyanabból a fájlból, ha nincs B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÉV</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>nincs mivel összehasonlítani</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Az írandó fájl; a &quot;-&quot; a szabványos kimenet.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>KIMENET</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Az elrendezés csoportja.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÉV</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Az elrendezés.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>hiányzik a %1 kapcsoló; a meglévők: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Lecseréli azokat az elrendezéseket, amelyek neve már létezik.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Más néven másolja az elrendezéseket, ha a nevük már létezik.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>a --replace és a --keep-both kizárják egymást</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>A minden elrendezésben átnevezendő ablak.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>AZONOSÍTÓ</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Az új név.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>az ablak minden elrendezésben át lesz nevezve</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Az az elrendezés, amely elé kerüljön.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>MÁSIK</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Az összes többi mögé helyezi át.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>a --before vagy a --last kapcsoló szükséges</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>a --%1 kapcsolóhoz szám szükséges</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>nem tartalmaz elrendezést</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(név nélkül)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(jelenlegi elrendezés)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(eszköztárak)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Legfeljebb ekkora fájlokat olvas, MiB-ban megadva; ha nincs megadva: %1; a 0 feloldja a korlátot.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>nem elrendezéseket tartalmazó dokumentum</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>teljes egészében újraíródik a dokumentumtípusa vagy a kódolása miatt</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>sérült</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 sérült</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nem olvasható</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>nincs ilyen indító</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>nem indít programot</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>saját Qt-vel rendelkező programot indít, amely nem tölt be bővítményeket</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>saját készítésű indító, változatlan marad</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Elrendezésváltáskor változatlanul hagyja az eszköztárakat.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Ismét eltávolítja az indítót.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Ablakelrendezés</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>a --size kapcsolóhoz legfeljebb %1 képpontos szélesség és magasság szükséges, például 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>a kép túl nagy; válasszon egy ablakot a --window kapcsolóval</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>a kép túl nagy</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Az írandó kép: SVG, ha a név végződése &quot;.svg&quot;, egyébként PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>KIMENET</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Az egyes ablakok mérete képpontban; ha nincs megadva, a saját mérete, legfeljebb %1 szélességben.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>SZxM</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Sötét színekkel rajzol.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>nem tartalmazza ablak állapotát</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>nem indítható el</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Elrendezésváltáskor változatlanul hagyja az eszköztárakat.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Megmutatja, mely programoknak van elrendezésük, és egyiket sem indítja el.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>a --list mellett nem adható meg program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>hiányzik egy program</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>a bővítmény nincs telepítve (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>&quot;%1&quot; ablak</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Felhasználói adatok: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>&quot;%1&quot; csoport</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>&quot;%1&quot; elrendezés (aktív)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>&quot;%1&quot; elrendezés</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Jelenlegi elrendezés</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Eszköztárak a dokumentum írásakor</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>JSON kimenetet ír ki.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>bal oldal</translation>
    </message>
    <message>
        <source>right</source>
        <translation>jobb oldal</translation>
    </message>
    <message>
        <source>top</source>
        <translation>felül</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>alul</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(név nélkül)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>helye: %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(elöl)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Lapok:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Bal oldal:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Jobb oldal:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Felül:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Alul:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Nem létező oldalon:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Lebegő:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Bezárva:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(lebegő)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(rejtett)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Eszköztárak, %1, %2. sor:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Nem egy ablak állapota, vagy sérült (méret: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Központi terület: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Sem dokkolható ablakok, sem eszköztárak</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>nincs rendben; lásd: &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>kimaradt: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>az állapot nem írható a saját beállításfájlja helyére</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>A szabványos kimenet helyett ebbe a fájlba ír.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>KIMENET</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Megtartja a név nélküli elrendezéseket.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Kihagyja a nem rendben lévő állapotokat, és jelzi ezt.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Egy beállításfájl SZAKASZ/KULCS alatti állapota.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>AZONOSÍTÓ</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>a --window beállításfájlokhoz való</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>több állapotot tartalmaz; válasszon egyet a --window kapcsolóval</translation>
    </message>
</context>
</TS>
