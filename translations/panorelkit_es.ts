<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>No hay ninguna disposición activa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; está activa.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Un clic pasa a la siguiente disposición.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Disposición siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Disposición &amp;anterior</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Diferencias con las ventanas actuales:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Posición del atajo:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Diferencias con las ventanas actuales</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Imagen de &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Ninguna. Las ventanas están como en esta disposición.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
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
        <translation>Escribe todas las disposiciones en un archivo</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Reemplaza todas las disposiciones por las de un archivo</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Añade las disposiciones de un archivo en lugar de las del mismo nombre</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>La suya del mismo nombre:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importar disposiciones</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Disposiciones de &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Disposiciones del archivo</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>En el archivo:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Conservar ambas</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Reemplazar la suya</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;No seleccionar nada</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Imagen de &quot;%1&quot; en el archivo</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Imagen de su &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>El nombre ya está en uso:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Reemplaza su disposición de este nombre</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Se añade como &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Se añade</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Ya la tiene</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>No se importa, el nombre ya está en uso</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>No se importa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Las disposiciones de %1 son de otra versión de este programa. Permanecen como están.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Está dañado.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Algunas de las disposiciones de %1 están dañadas y se han omitido.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Es de otra versión de este programa o está dañado.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>No se han podido guardar las disposiciones en %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>No se puede leer el archivo con sus disposiciones, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Se conserva como %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Permanece como está y las disposiciones no se guardarán en esta sesión.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>G&amp;estionar disposiciones...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Cambiar el nombre de &quot;%1&quot; a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Eliminar disposiciones</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplicar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplicar disposiciones</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Mover &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Mover disposiciones</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importado de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportado a &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Activar</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>&amp;Mover al grupo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Coloca las ventanas como en la disposición elegida</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Posición %1</translation>
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
        <translation>Todavía no hay disposiciones. Guarde una en el menú &quot;Disposiciones&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Bloquear la disposición</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>No se puede mover, separar ni cerrar nada por accidente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Guardar la disposición</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Guardar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Volver a la disposición</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Volver a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>y más</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nombre de la disposición</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nombre nuevo y después Intro</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nombre de la nueva disposición</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Una disposición necesita un nombre: escríbalo y pulse Intro.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Usar atajos de teclado</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 a %2 activan las disposiciones que tienen asignadas estas teclas</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Posición %1 vacía</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; no es un archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Se han exportado las disposiciones a &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>no contiene disposiciones</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>No se ha importado &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; no contiene disposiciones para este programa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>No se puede leer &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Se han importado las disposiciones de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Se han importado las disposiciones de &quot;%1&quot;; se han omitido las partes dañadas.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 ya no es una pestaña</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>La pestaña %1 está ahora delante</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 es ahora una pestaña junto a %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 se ha movido en el escritorio</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 es ahora una ventana independiente</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 ya no es una ventana independiente</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 está ahora al lado de sus vecinos</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 está ahora encima o debajo de sus vecinos</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 ocupa otro lugar entre sus vecinos</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 se ha movido de la línea %2 a la línea %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Se ha añadido %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Se ha eliminado %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 se ha movido de %2 a %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 está abierto</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 está cerrado</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 ha cambiado de tamaño de %2 a %3</translation>
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
        <translation>Cambiar el nombre de &quot;%1&quot; a &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Crear &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Guardar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Reordenar disposiciones</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Cambiar a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Cambiar al grupo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Volver a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Cambiar disposiciones</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importar &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>No se puede importar nada de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Omitido por estar dañado: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Sin sus partes dañadas: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Omitido por ser de grupos que este programa no tiene: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; no puede estar aquí en &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; no es la raíz &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Falta &quot;%1&quot; en &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>A &quot;%2&quot; le falta el atributo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; tiene el atributo desconocido &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; no puede ser &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>No puede haber texto en &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>El estado en &quot;%1&quot; no tiene un número par de dígitos</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Una disposición necesita un nombre.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Un nombre no puede contener caracteres de control.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Ya existe una disposición con este nombre.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>El archivo supera el límite de %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>No hay disposiciones en el archivo</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>El panel acoplable &quot;%1&quot; no tiene nombre de objeto.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Varios paneles acoplables tienen el nombre de objeto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>La barra de herramientas &quot;%1&quot; no tiene nombre de objeto.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Varias barras de herramientas tienen el nombre de objeto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>El panel acoplable &quot;%1&quot; no está en ninguna de las áreas de la ventana.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>La ventana &quot;%1&quot; no tiene widget central.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Disposiciones</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Hay paneles acoplables en un lado que no existe</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>El estado está dañado</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Hay paneles acoplables anidados a demasiada profundidad</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>El estado describe más de lo que puede tener una ventana</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>El documento está dañado: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>El documento no es de disposiciones: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>El documento tiene la versión desconocida &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>No es el estado de una ventana</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Una disposición no tiene nombre</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Varias disposiciones tienen el nombre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Un panel acoplable o una barra de herramientas no tiene nombre</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Varios paneles acoplables o barras de herramientas tienen el nombre &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>La combinación ha repetido paneles acoplables o barras de herramientas</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Hay paneles acoplables flotantes en pestañas; al combinar este estado se pierden sus barras de herramientas</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Hay barras de herramientas en un lado que no existe</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rehacer: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Mostrar el botón en una barra de herramientas</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>no existe la orden &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>no existe la orden &quot;%1&quot;; consulte &quot;panorel help&quot;</translation>
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
        <translation>en buen estado</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>No muestra nada.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Muestra JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>no existe el grupo &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>no existe la disposición &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>no existe la ventana &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view y --current se excluyen mutuamente</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Solo este grupo.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Solo esta disposición.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Solo la disposición de trabajo de un grupo.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Solo esta ventana; en un archivo de configuración, el estado de SECCIÓN/CLAVE.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>no tiene grupos ni disposiciones con nombre</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>es el estado de una sola ventana, que no tiene identificador</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>falta un archivo</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>demasiados archivos</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 se ha indicado más de una vez</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>falta la opción %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; consulte &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Indica si se pueden dar a las ventanas las disposiciones de los archivos sin causar daños.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Indica qué contienen las disposiciones de un archivo.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Indica en qué se diferencian las disposiciones.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Dibuja una disposición como imagen, PNG o SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Omite lo que la combinación ha repetido y las disposiciones sin nombre.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copia disposiciones de un documento a otro.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Cambia el nombre de una disposición, o de una ventana en todas las disposiciones.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Mueve una disposición a otro lugar de su grupo.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Elimina disposiciones de un documento.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Uso: panorel ORDEN ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help ORDEN&quot; explica cómo se usa una orden. Un FILE es un documento de disposiciones, el estado de una ventana o un archivo de configuración que contiene tales estados; &quot;-&quot; es la entrada estándar.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Inicia un programa de Qt 5 con un menú para las disposiciones de sus ventanas.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Hace que el escritorio inicie un programa con &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>no se puede escribir en la salida estándar</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>tiene varias disposiciones; elija una con --group y --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Solo en %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Ninguna diferencia</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Muestra JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Compara la disposición de --view con esta, del mismo archivo si no se indica B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>no hay nada con que comparar</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>El archivo que se escribe; &quot;-&quot; es la salida estándar.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SALIDA</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>El grupo de la disposición.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>La disposición.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>falta la opción %1; existentes: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Reemplaza las disposiciones cuyos nombres ya existen.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copia las disposiciones con otro nombre cuando el suyo ya existe.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace y --keep-both se excluyen mutuamente</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>La ventana cuyo nombre se cambia en todas las disposiciones.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>El nuevo nombre.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>el nombre de una ventana se cambia en todas las disposiciones</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>La disposición delante de la cual se coloca.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>OTRA</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>La coloca después de todas las demás.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>se necesita --before o --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 necesita un número</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>no contiene ninguna disposición</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(disposición de trabajo)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(barras de herramientas)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Lee archivos de hasta este tamaño en MiB, %1 si no se indica; 0 suprime el límite.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>no es un documento de disposiciones</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>se vuelve a escribir entero por su tipo de documento o su codificación</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 está dañado</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>no existe ese lanzador</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>no inicia ningún programa</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>inicia un programa que tiene su propio Qt, el cual no carga complementos</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>es un lanzador creado por usted y se queda como está</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deja las barras de herramientas como están al cambiar de disposición.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Vuelve a quitar el lanzador.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Disposición de ventanas</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size necesita una anchura y una altura de hasta %1 píxeles, como 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>la imagen es demasiado grande; elija una ventana con --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>la imagen es demasiado grande</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>La imagen que se escribe: SVG si el nombre termina en &quot;.svg&quot;; si no, PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SALIDA</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Tamaño de cada ventana en píxeles; si no se indica, el suyo, con una anchura máxima de %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ANxAL</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Dibuja en colores oscuros.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>no contiene el estado de ninguna ventana</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>no se puede iniciar</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deja las barras de herramientas como están al cambiar de disposición.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Muestra qué programas tienen disposiciones, sin iniciar ninguno.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list no admite ningún programa</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>falta un programa</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>el complemento no está instalado (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Ventana &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Datos de usuario: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grupo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Disposición &quot;%1&quot; (activa)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Disposición &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Disposición de trabajo</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barras de herramientas en el momento de la escritura</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Muestra JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>top</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abajo</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>en %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(delante)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Pestañas:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Arriba:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Abajo:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>En un lado que no existe:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flotantes:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Cerrados:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flotante)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Barras de herramientas, %1, línea %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>No es el estado de una ventana o está dañado (tamaño: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Área central: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Ni paneles acoplables ni barras de herramientas</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>no está en buen estado; consulte &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>omitido: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>un estado no se escribe sobre su archivo de configuración</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Escribe en este archivo en lugar de en la salida estándar.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SALIDA</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Conserva las disposiciones sin nombre.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Omite los estados que no están en buen estado y lo indica.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>El estado de SECCIÓN/CLAVE de un archivo de configuración.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window es para archivos de configuración</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>tiene varios estados; elija uno con --window</translation>
    </message>
</context>
</TS>
