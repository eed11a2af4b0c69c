<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Niciun aranjament nu este activ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; este activ.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Un clic trece la aranjamentul următor.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Aranjamentul următor</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>A&amp;ranjamentul anterior</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Diferențe față de ferestrele actuale:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Poziția scurtăturii:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Diferențe față de ferestrele actuale</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Imaginea lui &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Niciuna. Ferestrele arată ca în acest aranjament.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Niciuna</translation>
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
        <translation>Scrie toate aranjamentele într-un fișier</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Înlocuiește toate aranjamentele cu cele dintr-un fișier</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Adaugă aranjamentele dintr-un fișier, în locul celor cu același nume</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grup</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Al dumneavoastră cu același nume:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importă aranjamente</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Aranjamente din &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Aranjamentele fișierului</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>În fișier:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Păstrează ambele</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>Înlocuiește-&amp;l pe al dumneavoastră</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omite</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Selectează tot</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Deselectează tot</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importă</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Imaginea lui &quot;%1&quot; din fișier</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Imaginea aranjamentului dumneavoastră &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Numele este deja folosit:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Înlocuiește aranjamentul dumneavoastră cu acest nume</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Adăugat ca &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adăugat</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Îl aveți deja</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Nu se importă, numele este folosit</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Nu se importă</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Aranjamentele din %1 provin din altă versiune a acestui program. Ele rămân neschimbate.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Fișierul este deteriorat.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Unele dintre aranjamentele din %1 sunt deteriorate și au fost omise.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Fișierul provine din altă versiune a acestui program sau este deteriorat.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Aranjamentele nu au putut fi salvate în %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Fișierul cu aranjamentele dumneavoastră, %1, nu poate fi citit. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Fișierul este păstrat ca %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Fișierul rămâne neschimbat, iar aranjamentele nu se salvează în această rulare.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>G&amp;estionează aranjamentele...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Redenumește &quot;%1&quot; în &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Șterge &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Șterge aranjamente</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplică &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplică aranjamente</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Mută &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Mută aranjamente</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importă &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importat din &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportat în &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Aranjamente</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfă</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refă</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Activează</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Redenumește</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;uplică</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Ș&amp;terge</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Mută în sus</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Mută în &amp;jos</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportă...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Mută în &amp;grupul</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importă...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Așază ferestrele ca în aranjamentul ales</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Poziția %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modificat</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Activ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Nu există încă aranjamente. Salvați unul din meniul &quot;Aranjamente&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Blochează aranjamentul</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nimic nu poate fi mutat, desprins sau închis din greșeală</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Salvează aranjamentul</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Salvează &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Înapoi la aranjament</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Înapoi la &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>și altele</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Numele aranjamentului</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nume nou, apoi Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Numele noului aranjament</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Un aranjament are nevoie de un nume: introduceți unul, apoi apăsați Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Folosește scurtături</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 până la %2 activează aranjamentele cărora le sunt atribuite aceste taste</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Poziția %1 goală</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; nu este un fișier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>&quot;%1&quot; nu poate fi scris: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Aranjamentele au fost exportate în &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>fișierul nu conține aranjamente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; nu a fost importat: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; nu conține aranjamente pentru acest program.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; nu poate fi citit.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Aranjamentele din &quot;%1&quot; au fost importate.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Aranjamentele din &quot;%1&quot; au fost importate; părțile deteriorate au fost omise.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>stânga</translation>
    </message>
    <message>
        <source>right</source>
        <translation>dreapta</translation>
    </message>
    <message>
        <source>top</source>
        <translation>sus</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>jos</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(fără nume)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 nu mai este filă</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Fila %1 este acum în față</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 este acum o filă alături de %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 s-a mutat pe ecran</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 este acum o fereastră separată</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 nu mai este o fereastră separată</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 este acum alături de vecinii săi</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 este acum deasupra sau dedesubtul vecinilor săi</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 are alt loc printre vecinii săi</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 s-a mutat de pe linia %2 pe linia %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 a fost adăugată</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 a fost eliminată</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 s-a mutat: %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 este deschisă</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 este închisă</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 și-a schimbat dimensiunea de la %2 la %3</translation>
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
        <translation>Redenumește &quot;%1&quot; în &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Creează &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Șterge &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Salvează &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Reordonează aranjamentele</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Comută la &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Comută la grupul &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Înapoi la &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Modifică aranjamentele</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importă &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Nimic din &quot;%1&quot; nu poate fi importat: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Deteriorat, deci omis: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Fără părțile lor deteriorate: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Din grupuri pe care acest program nu le are, deci omis: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; nu poate fi aici în &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; nu este elementul rădăcină &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; lipsește din &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>Din &quot;%2&quot; lipsește atributul &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; are atributul necunoscut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; nu poate fi &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Nu poate exista text în &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Starea din &quot;%1&quot; nu are un număr par de cifre</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Un aranjament are nevoie de un nume.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Un nume nu poate conține caractere de control.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Există deja un aranjament cu acest nume.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Fișierul depășește limita de %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Acesta nu este un fișier obișnuit</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Fișierul este gol</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Fișierul nu conține aranjamente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Fereastra andocabilă &quot;%1&quot; nu are nume de obiect.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Mai multe ferestre andocabile au numele de obiect &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Bara de instrumente &quot;%1&quot; nu are nume de obiect.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Mai multe bare de instrumente au numele de obiect &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Fereastra andocabilă &quot;%1&quot; nu se află în niciuna dintre zonele ferestrei.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Fereastra &quot;%1&quot; nu are element central.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Aranjamente</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Aranjamente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Există ferestre andocabile pe o latură care nu există</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Starea este deteriorată</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Ferestrele andocabile sunt imbricate prea adânc</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Starea descrie mai mult decât poate avea o fereastră</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Documentul este deteriorat: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Documentul nu este un document de aranjamente: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Documentul are versiunea necunoscută &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Aceasta nu este starea unei ferestre</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Un aranjament nu are nume</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Mai multe aranjamente au numele &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>O fereastră andocabilă sau o bară de instrumente nu are nume</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Mai multe ferestre andocabile sau bare de instrumente au numele &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Îmbinarea a repetat ferestre andocabile sau bare de instrumente</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Ferestre andocabile sunt flotante ca file; la îmbinarea acestei stări se pierd barele ei de instrumente</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Există bare de instrumente pe o latură care nu există</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Desfă</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Desfă: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refă</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Refă: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Arată butonul într-o bară de instrumente</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Aranjamente</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>nu există comanda &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>nu există comanda &quot;%1&quot;; vedeți &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>octetul %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>document</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>în regulă</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Nu afișează nimic.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Afișează JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>nu există grupul &quot;%1&quot;; există: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>nu există aranjamentul &quot;%1&quot;; există: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>nu există fereastra &quot;%1&quot;; există: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view și --current se exclud reciproc</translation>
    </message>
    <message>
        <source>none</source>
        <translation>niciunul</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Numai acest grup.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Numai acest aranjament.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Numai aranjamentul curent al unui grup.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Numai această fereastră; într-un fișier de configurare, starea de la SECȚIUNE/CHEIE.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>nu conține nici grupuri, nici aranjamente cu nume</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>este starea unei singure ferestre, care nu are ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Afișează acest ajutor.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Afișează versiunea.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>lipsește un fișier</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>prea multe fișiere</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 este dat de mai multe ori</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>lipsește opțiunea %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; vedeți &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Arată dacă ferestrele pot primi fără probleme aranjamentele din fișiere.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Arată ce conțin aranjamentele dintr-un fișier.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Arată prin ce diferă aranjamentele.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Desenează un aranjament ca imagine, PNG sau SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Omite ce a repetat îmbinarea, precum și aranjamentele fără nume.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copiază aranjamente dintr-un document în altul.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Redenumește un aranjament sau o fereastră în toate aranjamentele.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Mută un aranjament în alt loc din grupul său.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Elimină aranjamente dintr-un document.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Utilizare: panorel COMANDĂ ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMANDĂ&quot; arată cum se folosește o comandă. Un FILE este un document de aranjamente, starea unei ferestre sau un fișier de configurare care conține astfel de stări; &quot;-&quot; este intrarea standard.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Pornește un program Qt 5 cu un meniu pentru aranjamentele ferestrelor sale.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Face ca mediul de birou să pornească un program cu &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>nu se poate scrie la ieșirea standard</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>conține mai multe aranjamente; alegeți unul cu --group și --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Numai în %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Nicio diferență</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Afișează JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Compară aranjamentul de la --view cu acesta, din același fișier dacă nu există B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>nu există nimic cu care să se compare</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Fișierul de scris; &quot;-&quot; este ieșirea standard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>IEȘIRE</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Grupul aranjamentului.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NUME</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Aranjamentul.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>lipsește opțiunea %1; există: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Înlocuiește aranjamentele ale căror nume există deja.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copiază aranjamentele sub alt nume dacă numele lor există deja.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace și --keep-both se exclud reciproc</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Fereastra de redenumit în toate aranjamentele.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Noul nume.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>o fereastră se redenumește în toate aranjamentele</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Aranjamentul înaintea căruia se mută.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ALTUL</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Îl mută după toate celelalte.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>este necesar fie --before, fie --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 necesită un număr</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>nu conține niciun aranjament</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(fără nume)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(aranjament curent)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(bare de instrumente)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Citește fișiere de cel mult această dimensiune în MiB, %1 dacă nu este indicată; 0 elimină limita.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>nu este un document de aranjamente</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>este rescris în întregime, din cauza tipului de document sau a codificării</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>este deteriorat</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 are starea deteriorată</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nu poate fi citit</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>nu există acest lansator</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>nu pornește niciun program</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>pornește un program cu propriul Qt, care nu încarcă extensii</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>este un lansator creat de dumneavoastră și rămâne cum este</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lasă barele de instrumente cum sunt la schimbarea aranjamentului.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Înlătură din nou lansatorul.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Aranjamentul ferestrei</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size necesită o lățime și o înălțime de cel mult %1 pixeli, de exemplu 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>imaginea este prea mare; alegeți o fereastră cu --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>imaginea este prea mare</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Imaginea de scris: SVG dacă numele se termină cu &quot;.svg&quot;, altfel PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>IEȘIRE</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Dimensiunea fiecărei ferestre în pixeli; dacă nu este indicată, cea proprie, cu lățimea de cel mult %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxÎ</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Desenează în culori închise.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>nu conține starea unei ferestre</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>nu poate fi pornit</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Lasă barele de instrumente cum sunt la schimbarea aranjamentului.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Arată ce programe au aranjamente, fără a porni vreunul.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list nu acceptă un program</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>lipsește un program</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>extensia nu este instalată (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Fereastra &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Date de utilizator: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grupul &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Aranjamentul &quot;%1&quot; (activ)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Aranjamentul &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Aranjamentul curent</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barele de instrumente la scrierea documentului</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Afișează JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>stânga</translation>
    </message>
    <message>
        <source>right</source>
        <translation>dreapta</translation>
    </message>
    <message>
        <source>top</source>
        <translation>sus</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>jos</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(fără nume)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>la %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(în față)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Stânga:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Dreapta:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Sus:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Jos:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Pe o latură care nu există:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flotante:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Închise:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flotantă)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(ascunsă)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Bare de instrumente, %1, linia %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Nu este starea unei ferestre sau este deteriorată (dimensiune: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Zona centrală: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Nici ferestre andocabile, nici bare de instrumente</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>nu este în regulă; vedeți &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>omis: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>o stare nu se scrie peste fișierul ei de configurare</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Scrie în acest fișier și nu la ieșirea standard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>IEȘIRE</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Păstrează aranjamentele fără nume.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Omite stările care nu sunt în regulă și anunță acest lucru.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Starea de la SECȚIUNE/CHEIE dintr-un fișier de configurare.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window este pentru fișiere de configurare</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>conține mai multe stări; alegeți una cu --window</translation>
    </message>
</context>
</TS>
