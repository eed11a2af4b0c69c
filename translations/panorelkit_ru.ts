<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Нет активной компоновки.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Активна компоновка &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Щелчок переключает на следующую компоновку.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Следующая компоновка</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Предыдущая компоновка</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Отличия от текущих окон:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Ячейка комбинации клавиш:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Отличия от текущих окон</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Изображение &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Нет. Окна выглядят как в этой компоновке.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
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
        <translation>Записать все компоновки в файл</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Заменить все компоновки компоновками из файла</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Добавить компоновки из файла, заменив одноимённые</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Группа</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Ваша с тем же именем:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Импорт компоновок</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Компоновки в &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Компоновки из файла</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>В файле:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Оставить обе</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Заменить вашу</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Пропустить</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Выбрать все</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Снять выбор</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Изображение &quot;%1&quot; из файла</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Изображение вашей &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Имя уже занято:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Заменит вашу компоновку с этим именем</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Будет добавлена как &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Будет добавлена</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Уже есть у вас</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Не будет импортирована, имя занято</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Не будет импортирована</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Компоновки в %1 относятся к другой версии этой программы. Они остаются без изменений.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Файл повреждён.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Некоторые компоновки в %1 повреждены и были пропущены.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Файл относится к другой версии этой программы или повреждён.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Не удалось сохранить компоновки в %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Не удаётся прочитать файл с вашими компоновками, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Файл сохранён как %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Файл остаётся без изменений, и до завершения программы компоновки не сохраняются.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Управление компоновками...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Переименовать &quot;%1&quot; в &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Удалить &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Удалить компоновки</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Создать копию &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Создать копии компоновок</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Переместить &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Переместить компоновки</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Импортировать &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Импортировано из &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Экспортировано в &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Компоновки</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Переключить</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>П&amp;ереименовать</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Создать копию</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Переместить &amp;вверх</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Пе&amp;реместить вниз</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Переместить в &amp;группу</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Импорт...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Расположить окна как в выбранной компоновке</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Ячейка %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>изменена</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Активна</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Компоновок пока нет. Сохраните компоновку в меню &quot;Компоновки&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Заблокировать компоновку</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Ничего нельзя случайно переместить, открепить или закрыть</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Сохранить компоновку</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Сохранить &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Вернуться к компоновке</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Вернуться к &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>и другое</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Имя компоновки</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Новое имя, затем Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Имя новой компоновки</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Компоновке нужно имя: введите его и нажмите Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Использовать комбинации клавиш</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 – %2 переключают на компоновки, которым назначены эти клавиши</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Пустая ячейка %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; не является файлом.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Не удаётся записать &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Компоновки экспортированы в &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>в файле нет компоновок</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Файл &quot;%1&quot; не импортирован: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>В &quot;%1&quot; нет компоновок для этой программы.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Не удаётся прочитать &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Компоновки из &quot;%1&quot; импортированы.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Компоновки из &quot;%1&quot; импортированы; повреждённые части пропущены.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>слева</translation>
    </message>
    <message>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <source>top</source>
        <translation>вверху</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>внизу</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 больше не вкладка</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Вкладка %1 теперь на переднем плане</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 теперь вкладка рядом с %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>Перемещено на рабочем столе: %1</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 теперь отдельное окно</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 больше не отдельное окно</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 теперь рядом с соседями</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 теперь над соседями или под ними</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 теперь на другом месте среди соседей</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>Перемещено: %1 (из ряда %2 в ряд %3)</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Удалено: %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>Перемещено: %1 (было %2, стало %3)</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>Открыто: %1</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>Закрыто: %1</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Изменён размер %1: было %2, стало %3</translation>
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
        <translation>Переименовать &quot;%1&quot; в &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Создать &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Удалить &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Сохранить &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Изменить порядок компоновок</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Переключить на &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Переключить на группу &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Вернуться к &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Изменить компоновки</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Импортировать &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Из &quot;%1&quot; ничего нельзя импортировать: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Повреждено и поэтому пропущено: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Без повреждённых частей: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Из групп, которых нет в этой программе, поэтому пропущено: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>Элемент &quot;%1&quot; здесь, в &quot;%2&quot;, недопустим</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; не является корневым элементом &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Элемент &quot;%1&quot; отсутствует в &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>У &quot;%2&quot; нет атрибута &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>У &quot;%2&quot; неизвестный атрибут &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Значение &quot;Active&quot; не может быть &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>В &quot;%1&quot; не может быть текста</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Состояние в &quot;%1&quot; содержит нечётное число цифр</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Компоновке нужно имя.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Имя не может содержать управляющие символы.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Компоновка с таким именем уже есть.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Размер файла превышает предел %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Это не обычный файл</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Файл пуст</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>В файле нет компоновок</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>У прикрепляемой панели &quot;%1&quot; нет имени объекта.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Имя объекта &quot;%1&quot; имеют несколько прикрепляемых панелей.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>У панели инструментов &quot;%1&quot; нет имени объекта.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Имя объекта &quot;%1&quot; имеют несколько панелей инструментов.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Прикрепляемая панель &quot;%1&quot; не находится ни в одной из областей окна.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>У окна &quot;%1&quot; нет центрального виджета.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Компоновки</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Компоновки</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Прикрепляемые панели находятся на несуществующей стороне</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Состояние повреждено</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Слишком глубокая вложенность прикрепляемых панелей</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Состояние описывает больше, чем может содержать окно</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Документ повреждён: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Это не документ компоновок: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Неизвестная версия документа: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Это не состояние окна</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>У компоновки нет имени</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Имя &quot;%1&quot; имеют несколько компоновок</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>У прикрепляемой панели или панели инструментов нет имени</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Имя &quot;%1&quot; имеют несколько прикрепляемых панелей или панелей инструментов</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>При объединении прикрепляемые панели или панели инструментов были повторены</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Прикрепляемые панели плавают в виде вкладок; при объединении этого состояния его панели инструментов теряются</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Панели инструментов находятся на несуществующей стороне</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Отменить: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Повторить: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Показать кнопку на панели инструментов</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Компоновки</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>нет команды &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>нет команды &quot;%1&quot;; см. &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>байт %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>документ</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>в порядке</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Ничего не выводить.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вывести JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>нет группы &quot;%1&quot;; имеются: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>нет компоновки &quot;%1&quot;; имеются: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>нет окна &quot;%1&quot;; имеются: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view и --current исключают друг друга</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Только эта группа.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Только эта компоновка.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Только текущая компоновка группы.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Только это окно; в файле настроек — состояние по адресу РАЗДЕЛ/КЛЮЧ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>не содержит ни групп, ни именованных компоновок</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>является состоянием одного окна, у которого нет идентификатора</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Показать версию.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>не указан файл</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>слишком много файлов</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 указано более одного раза</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>не указан параметр %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; см. &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Сообщить, можно ли без вреда применить к окнам компоновки из файлов.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Сообщить, что записано в компоновках файла.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Сообщить, чем различаются компоновки.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Нарисовать компоновку в виде изображения PNG или SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Исключить повторения, возникшие при объединении, и компоновки без имени.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Скопировать компоновки из одного документа в другой.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Переименовать компоновку или окно во всех компоновках.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Переместить компоновку на другое место в её группе.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Удалить компоновки из документа.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Использование: panorel КОМАНДА ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help КОМАНДА&quot; показывает, как использовать команду. FILE — это документ компоновок, состояние одного окна или файл настроек с такими состояниями; &quot;-&quot; — стандартный ввод.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Запустить программу Qt 5 с меню для компоновок её окон.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Запускать программу с рабочего стола через &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>не удаётся записать в стандартный вывод</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>содержит несколько компоновок; выберите одну с помощью --group и --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Только в %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Различий нет</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вывести JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Сравнить компоновку из --view с этой; если B не указан — из того же файла.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>не с чем сравнивать</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Файл для записи; &quot;-&quot; — стандартный вывод.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВЫВОД</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Группа компоновки.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Компоновка.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>не указан параметр %1; имеются: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Заменить компоновки, имена которых уже есть.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Скопировать компоновки под другим именем, если их имя уже есть.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace и --keep-both исключают друг друга</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Окно, которое нужно переименовать во всех компоновках.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Новое имя.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>окно переименовывается во всех компоновках</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Компоновка, перед которой нужно поместить эту.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ДРУГАЯ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Поместить после всех остальных.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>нужен параметр --before или --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>для --%1 нужно число</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>не содержит компоновок</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(текущая компоновка)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(панели инструментов)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Читать файлы не больше этого размера в MiB; по умолчанию %1; 0 снимает ограничение.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>не является документом компоновок</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>записывается целиком заново из-за типа документа или кодировки</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>повреждён</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>повреждено: %1</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не удаётся прочитать</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>такого файла запуска нет</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>не запускает никакую программу</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>запускает программу с собственной Qt, которая не загружает модули</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>ваш собственный файл запуска, он остаётся без изменений</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Не менять панели инструментов при переключении компоновки.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Снова убрать файл запуска.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Компоновка окон</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>для --size нужны ширина и высота не более %1 пикселей, например 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>изображение слишком велико; выберите одно окно с помощью --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>изображение слишком велико</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Изображение для записи: SVG, если имя оканчивается на &quot;.svg&quot;, иначе PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВЫВОД</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Размер каждого окна в пикселях; если не указан — собственный, не более %1 в ширину.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ШxВ</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Рисовать в тёмных цветах.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>не содержит состояния окна</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>не удаётся запустить</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Не менять панели инструментов при переключении компоновки.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Показать, у каких программ есть компоновки, ничего не запуская.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>с --list программа не указывается</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>не указана программа</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>модуль не установлен (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Окно &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Пользовательские данные: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Группа &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Компоновка &quot;%1&quot; (активна)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Компоновка &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Текущая компоновка</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Панели инструментов на момент записи</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вывести JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>слева</translation>
    </message>
    <message>
        <source>right</source>
        <translation>справа</translation>
    </message>
    <message>
        <source>top</source>
        <translation>вверху</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>внизу</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>в точке %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(на переднем плане)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Вкладки:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Вверху:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Внизу:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>На несуществующей стороне:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Плавающие:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Закрытые:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(плавающая)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(скрыта)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Панели инструментов, %1, ряд %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Не состояние окна или повреждено (размер: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Центральная область: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Нет ни прикрепляемых панелей, ни панелей инструментов</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>не в порядке; см. &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>пропущено: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>состояние не записывается поверх своего файла настроек</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Записать в этот файл, а не в стандартный вывод.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВЫВОД</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Сохранить компоновки без имени.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Исключить состояния, которые не в порядке, и сообщить об этом.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Состояние по адресу РАЗДЕЛ/КЛЮЧ в файле настроек.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window предназначен для файлов настроек</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>содержит несколько состояний; выберите одно с помощью --window</translation>
    </message>
</context>
</TS>
