<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ca" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>No hi ha cap disposició activa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; és activa.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Un clic passa a la disposició següent.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Disposició següent</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Disposició &amp;anterior</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Diferències amb les finestres actuals:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Posició de la drecera:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Diferències amb les finestres actuals</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Imatge de &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Cap. Les finestres són com en aquesta disposició.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Cap</translation>
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
        <translation>Escriu totes les disposicions en un fitxer</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Substitueix totes les disposicions per les d’un fitxer</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Afegeix les disposicions d’un fitxer, en lloc de les que tenen el mateix nom</translation>
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
        <translation>La vostra amb el mateix nom:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importa disposicions</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Disposicions de &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Disposicions del fitxer</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>Al fitxer:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Conserva les dues</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Substitueix la vostra</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omet</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Selecciona-&amp;ho tot</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;No seleccionis res</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Imatge de &quot;%1&quot; al fitxer</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Imatge de la vostra &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>El nom ja s’utilitza:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Substitueix la vostra disposició d’aquest nom</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>S’afegeix com a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>S’afegeix</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Ja la teniu</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>No s’importa, el nom ja s’utilitza</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>No s’importa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Les disposicions de %1 són d’una altra versió d’aquest programa. Es deixen tal com estan.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>El fitxer està malmès.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Algunes de les disposicions de %1 estan malmeses i s’han omès.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>El fitxer és d’una altra versió d’aquest programa o està malmès.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>No s’han pogut desar les disposicions a %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>No es pot llegir el fitxer amb les vostres disposicions, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>El fitxer es conserva com a %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>El fitxer es deixa tal com està, i les disposicions no es desaran en aquesta execució.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>Gestiona &amp;les disposicions...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Canvia el nom de &quot;%1&quot; a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Suprimeix &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Suprimeix disposicions</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplica &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplica disposicions</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Mou &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Mou disposicions</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>S’ha importat de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>S’ha exportat a &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Disposicions</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfés</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refés</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Activa</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Canvia el nom</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;uplica</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Suprimeix</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Mou amunt</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>M&amp;ou avall</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporta...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Mou al &amp;grup</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Col·loca les finestres com en la disposició triada</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Posició %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modificada</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Encara no hi ha cap disposició. Deseu-ne una al menú &quot;Disposicions&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Bloca la disposició</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>No es pot moure, separar ni tancar res per accident</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Desa la disposició</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Desa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Torna a la disposició</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Torna a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>i més</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nom de la disposició</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nom nou i després Retorn</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nom de la disposició nova</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Una disposició necessita un nom: escriviu-ne un i premeu Retorn.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Usa les dreceres</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 a %2 activen les disposicions que tenen assignades aquestes tecles</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Posició %1 buida</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; no és un fitxer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>No es pot escriure &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>S’han exportat les disposicions a &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>el fitxer no conté cap disposició</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>No s’ha importat &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; no té cap disposició per a aquest programa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>No es pot llegir &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>S’han importat les disposicions de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>S’han importat les disposicions de &quot;%1&quot;; les parts malmeses s’han omès.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>a l’esquerra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a la dreta</translation>
    </message>
    <message>
        <source>top</source>
        <translation>a dalt</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>a baix</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sense nom)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 ja no és una pestanya</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>La pestanya %1 ara és al davant</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 ara és una pestanya al costat de %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 s’ha mogut a l’escriptori</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 ara és una finestra independent</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 ja no és una finestra independent</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 ara és al costat de les seves veïnes</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 ara és a sobre o a sota de les seves veïnes</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 té un altre lloc entre les seves veïnes</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 s’ha mogut de la línia %2 a la línia %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 s’ha afegit</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 s’ha eliminat</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 s’ha mogut: %2 → %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 és oberta</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 és tancada</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>La mida de %1 ha canviat de %2 a %3</translation>
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
        <translation>Canvia el nom de &quot;%1&quot; a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Crea &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Suprimeix &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Desa &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Reordena les disposicions</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Canvia a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Canvia al grup &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Torna a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Canvia les disposicions</translation>
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
        <translation>No es pot importar res de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Omès perquè està malmès: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Sense les parts malmeses: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Omès perquè és de grups que aquest programa no té: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; no pot ser aquí dins de &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; no és l’element arrel &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Falta &quot;%1&quot; a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>A &quot;%2&quot; li falta l’atribut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; té l’atribut desconegut &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; no pot ser &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>No hi pot haver text a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>L’estat de &quot;%1&quot; no té un nombre parell de dígits</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Una disposició necessita un nom.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Un nom no pot contenir caràcters de control.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Ja hi ha una disposició amb aquest nom.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>El fitxer supera el límit de %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Això no és un fitxer normal</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>El fitxer és buit</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>No hi ha cap disposició al fitxer</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>La finestra acoblable &quot;%1&quot; no té nom d’objecte.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Diverses finestres acoblables tenen el nom d’objecte &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>La barra d’eines &quot;%1&quot; no té nom d’objecte.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Diverses barres d’eines tenen el nom d’objecte &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>La finestra acoblable &quot;%1&quot; no és a cap de les àrees de la finestra.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>La finestra &quot;%1&quot; no té giny central.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Disposicions</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposicions</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Hi ha finestres acoblables en un costat que no existeix</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>L’estat està malmès</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Les finestres acoblables estan imbricades massa profundament</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>L’estat descriu més coses de les que pot tenir una finestra</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>El document està malmès: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>El document no és un document de disposicions: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>El document té la versió desconeguda &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Això no és l’estat d’una finestra</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Una disposició no té nom</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Diverses disposicions tenen el nom &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Una finestra acoblable o barra d’eines no té nom</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Diverses finestres acoblables o barres d’eines tenen el nom &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>La fusió ha repetit finestres acoblables o barres d’eines</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Hi ha finestres acoblables flotants com a pestanyes; en fusionar aquest estat se’n perden les barres d’eines</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Hi ha barres d’eines en un costat que no existeix</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Desfés</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Desfés: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refés</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Refés: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Mostra el botó en una barra d’eines</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposicions</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>no hi ha cap ordre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>no hi ha cap ordre &quot;%1&quot;; vegeu &quot;panorel help&quot;</translation>
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
        <translation>correcte</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>No imprimeix res.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Imprimeix JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>no hi ha cap grup &quot;%1&quot;; hi ha: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>no hi ha cap disposició &quot;%1&quot;; hi ha: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>no hi ha cap finestra &quot;%1&quot;; hi ha: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view i --current s’exclouen mútuament</translation>
    </message>
    <message>
        <source>none</source>
        <translation>cap</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Només aquest grup.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Només aquesta disposició.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Només la disposició actual d’un grup.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Només aquesta finestra; en un fitxer de configuració, l’estat a SECCIÓ/CLAU.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>no té grups ni disposicions amb nom</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>és l’estat d’una sola finestra, que no té ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra aquesta ajuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra la versió.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>falta un fitxer</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>massa fitxers</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 s’ha indicat més d’una vegada</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>falta l’opció %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; vegeu &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Indica si les finestres poden rebre sense perill les disposicions de fitxers.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Indica què contenen les disposicions d’un fitxer.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Indica en què difereixen les disposicions.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Dibuixa una disposició com a imatge, PNG o SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Omet el que la fusió ha repetit i les disposicions sense nom.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copia disposicions d’un document a un altre.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Canvia el nom d’una disposició, o d’una finestra en totes les disposicions.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Mou una disposició a un altre lloc del seu grup.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Elimina disposicions d’un document.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Ús: panorel ORDRE ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help ORDRE&quot; explica com s’utilitza una ordre. Un FILE és un document de disposicions, l’estat d’una finestra o un fitxer de configuració que conté aquests estats; &quot;-&quot; és l’entrada estàndard.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Inicia un programa de Qt 5 amb un menú per a les disposicions de les seves finestres.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Fa que l’escriptori iniciï un programa amb &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>no es pot escriure a la sortida estàndard</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>té diverses disposicions; trieu-ne una amb --group i --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Només a %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Cap diferència</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Imprimeix JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Compara la disposició de --view amb aquesta, del mateix fitxer si no hi ha B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>no hi ha res amb què comparar</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>El fitxer que s’ha d’escriure; &quot;-&quot; és la sortida estàndard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIDA</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>El grup de la disposició.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>La disposició.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>falta l’opció %1; hi ha: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Substitueix les disposicions els noms de les quals ja existeixen.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copia les disposicions amb un altre nom si el seu ja existeix.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace i --keep-both s’exclouen mútuament</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>La finestra a la qual es canvia el nom en totes les disposicions.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>El nom nou.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>es canvia el nom d’una finestra en totes les disposicions</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>La disposició davant de la qual es mou.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ALTRA</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>La mou després de totes les altres.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>cal --before o --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 necessita un nombre</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>no conté cap disposició</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sense nom)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(disposició actual)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(barres d’eines)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Llegeix fitxers de fins a aquesta mida en MiB, %1 si no s’indica; 0 elimina el límit.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>no és un document de disposicions</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>es torna a escriure sencer, a causa del tipus de document o de la codificació</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>està malmès</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 té l’estat malmès</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no es pot llegir</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>no hi ha cap llançador així</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>no inicia cap programa</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>inicia un programa que té el seu propi Qt, que no carrega connectors</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>és un llançador creat per vós i queda com està</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deixa les barres d’eines com estan en canviar de disposició.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Torna a treure el llançador.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Disposició de finestra</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size necessita una amplada i una alçada de %1 píxels com a màxim, per exemple 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>la imatge és massa gran; trieu una finestra amb --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>la imatge és massa gran</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>La imatge que s’ha d’escriure: SVG si el nom acaba en &quot;.svg&quot;, si no PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIDA</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Mida de cada finestra en píxels; si no s’indica, la seva pròpia, de %1 d’amplada com a màxim.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Dibuixa amb colors foscos.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>no conté cap estat d’una finestra</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>no es pot iniciar</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deixa les barres d’eines com estan en canviar de disposició.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Mostra quins programes tenen disposicions, sense iniciar-ne cap.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list no admet cap programa</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>falta un programa</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>el connector no està instal·lat (Debian: panorel-plugin)</translation>
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
        <translation>Dades d’usuari: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grup &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Disposició &quot;%1&quot; (activa)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Disposició &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Disposició actual</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barres d’eines en escriure el document</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Imprimeix JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>a l’esquerra</translation>
    </message>
    <message>
        <source>right</source>
        <translation>a la dreta</translation>
    </message>
    <message>
        <source>top</source>
        <translation>a dalt</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>a baix</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(sense nom)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>a %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(al davant)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Pestanyes:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>A l’esquerra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>A la dreta:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>A dalt:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>A baix:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>En un costat que no existeix:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flotants:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Tancades:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flotant)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Barres d’eines, %1, línia %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>No és l’estat d’una finestra, o està malmès (mida: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Àrea central: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ni finestres acoblables ni barres d’eines</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>no és correcte; vegeu &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>omès: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>un estat no s’escriu sobre el seu fitxer de configuració</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Escriu en aquest fitxer i no a la sortida estàndard.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SORTIDA</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Conserva les disposicions sense nom.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Omet els estats que no són correctes i n’informa.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>L’estat a SECCIÓ/CLAU d’un fitxer de configuració.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window és per a fitxers de configuració</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>té diversos estats; trieu-ne un amb --window</translation>
    </message>
</context>
</TS>
