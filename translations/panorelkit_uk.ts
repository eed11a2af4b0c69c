<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Немає активного компонування.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>Активним є компонування &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Клацання перемикає на наступне компонування.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Наступне компонування</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>&amp;Попереднє компонування</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Відмінності від поточних вікон:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Комірка скорочення:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Відмінності від поточних вікон</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Зображення &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Немає. Вікна виглядають як у цьому компонуванні.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Немає</translation>
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
        <translation>Записати всі компонування до файлу</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Замінити всі компонування компонуваннями з файлу</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Додати компонування з файлу, замінивши однойменні</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Група</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>Ваше з такою самою назвою:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Імпорт компонувань</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Компонування у &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Компонування з файлу</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>У файлі:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Залишити обидва</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>Замінити &amp;ваше</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Пропустити</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>В&amp;ибрати все</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>З&amp;няти вибір</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Імпортувати</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Зображення &quot;%1&quot; з файлу</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Зображення вашого &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>Назву вже зайнято:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Замінить ваше компонування з цією назвою</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Буде додано як &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Буде додано</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Уже є у вас</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Не буде імпортовано, назву зайнято</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Не буде імпортовано</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>Компонування в %1 належать до іншої версії цієї програми. Вони залишаються без змін.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Файл пошкоджено.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Деякі компонування в %1 пошкоджено, їх пропущено.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>Файл належить до іншої версії цієї програми або його пошкоджено.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Не вдалося зберегти компонування в %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Не вдалося прочитати файл із вашими компонуваннями, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>Файл збережено як %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Файл залишається без змін, і до завершення програми компонування не зберігатимуться.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>&amp;Керування компонуваннями...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Перейменувати &quot;%1&quot; на &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Вилучити &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Вилучити компонування</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Дублювати &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Дублювати компонування</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Перемістити &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Перемістити компонування</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Імпортувати &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Імпортовано з &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Експортовано до &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Компонування</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Перемкнути</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>П&amp;ерейменувати</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>&amp;Дублювати</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>В&amp;илучити</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Пе&amp;ремістити вгору</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Пере&amp;містити вниз</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>Ек&amp;спорт...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Перемістити до &amp;групи</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Імпорт...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Розташувати вікна як у вибраному компонуванні</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Комірка %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>змінено</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Активне</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Компонувань ще немає. Збережіть компонування в меню &quot;Компонування&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Заблокувати компонування</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Нічого не можна випадково перемістити, відкріпити чи закрити</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Зберегти компонування</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Зберегти &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Повернутися до компонування</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Повернутися до &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>та інше</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Назва компонування</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Нова назва, потім Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Назва нового компонування</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Компонуванню потрібна назва: введіть її і натисніть Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Використовувати клавіатурні скорочення</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 – %2 перемикають на компонування, яким призначено ці клавіші</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Порожня комірка %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; не є файлом.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Не вдалося записати &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>Компонування експортовано до &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>у файлі немає компонувань</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>Файл &quot;%1&quot; не імпортовано: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>У &quot;%1&quot; немає компонувань для цієї програми.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Не вдалося прочитати &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>Компонування з &quot;%1&quot; імпортовано.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>Компонування з &quot;%1&quot; імпортовано; пошкоджені частини пропущено.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>ліворуч</translation>
    </message>
    <message>
        <source>right</source>
        <translation>праворуч</translation>
    </message>
    <message>
        <source>top</source>
        <translation>вгорі</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>внизу</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(без назви)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 більше не вкладка</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>Вкладка %1 тепер на передньому плані</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 тепер вкладка поруч із %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>Переміщено на стільниці: %1</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 тепер окреме вікно</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 більше не окреме вікно</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 тепер поруч із сусідами</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 тепер над сусідами або під ними</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 тепер на іншому місці серед сусідів</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>Переміщено %1 (з рядка %2 до рядка %3)</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>Додано %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>Вилучено %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>Переміщено %1 (було %2, стало %3)</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>Відкрито %1</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>Закрито %1</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>Змінено розмір %1 з %2 на %3</translation>
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
        <translation>Перейменувати &quot;%1&quot; на &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Створити &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Вилучити &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Зберегти &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Змінити порядок компонувань</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Перемкнути на &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Перемкнути на групу &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Повернутися до &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Змінити компонування</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Імпортувати &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>З &quot;%1&quot; нічого не можна імпортувати: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Пошкоджено й тому пропущено: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Без пошкоджених частин: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>Із груп, яких немає в цій програмі, тому пропущено: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; не може бути тут у &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; не є кореневим елементом &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>У &quot;%2&quot; немає &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>У &quot;%2&quot; немає атрибута &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; має невідомий атрибут &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>Значенням &quot;Active&quot; не може бути &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>У &quot;%1&quot; не може бути тексту</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>Стан у &quot;%1&quot; має непарну кількість цифр</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Компонуванню потрібна назва.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Назва не може містити керівних символів.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Компонування з такою назвою вже є.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>Розмір файлу перевищує обмеження %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Це не звичайний файл</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Файл порожній</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>У файлі немає компонувань</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>Прикріплювана панель &quot;%1&quot; не має назви об’єкта.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Кілька прикріплюваних панелей мають назву об’єкта &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>Панель інструментів &quot;%1&quot; не має назви об’єкта.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Кілька панелей інструментів мають назву об’єкта &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>Прикріплювана панель &quot;%1&quot; не належить до жодної з областей вікна.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>Вікно &quot;%1&quot; не має центрального віджета.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Компонування</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Компонування</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Прикріплювані панелі розташовано на боці, якого не існує</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>Стан пошкоджено</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Прикріплювані панелі вкладено надто глибоко</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>Стан описує більше, ніж може мати вікно</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>Документ пошкоджено: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>Це не документ компонувань: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>Документ має невідому версію &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Це не стан вікна</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Компонування не має назви</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Кілька компонувань мають назву &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Прикріплювана панель або панель інструментів не має назви</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Кілька прикріплюваних панелей або панелей інструментів мають назву &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>Унаслідок об’єднання повторено прикріплювані панелі або панелі інструментів</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Прикріплювані панелі плавають як вкладки; під час об’єднання цього стану його панелі інструментів буде втрачено</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Панелі інструментів розташовано на боці, якого не існує</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Скасувати: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Повторити: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Показувати кнопку на панелі інструментів</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Компонування</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>немає команди &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>немає команди &quot;%1&quot;; див. &quot;panorel help&quot;</translation>
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
        <translation>усе гаразд</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Нічого не виводити.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вивести JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>немає групи &quot;%1&quot;; наявні: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>немає компонування &quot;%1&quot;; наявні: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>немає вікна &quot;%1&quot;; наявні: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view і --current виключають одне одного</translation>
    </message>
    <message>
        <source>none</source>
        <translation>немає</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Лише ця група.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>НАЗВА</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Лише це компонування.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Лише поточне компонування групи.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Лише це вікно; у файлі налаштувань — стан за адресою РОЗДІЛ/КЛЮЧ.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>не має ні груп, ні компонувань із назвами</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>є станом одного вікна, яке не має ідентифікатора</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Показати цю довідку.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Показати версію.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>не вказано файл</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>забагато файлів</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 вказано більше одного разу</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>не вказано параметр %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; див. &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Повідомити, чи можна без шкоди застосувати до вікон компонування з файлів.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Повідомити, що містять компонування у файлі.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Повідомити, чим відрізняються компонування.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Намалювати компонування як зображення PNG або SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Вилучити повторення, що виникли під час об’єднання, і компонування без назви.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Скопіювати компонування з одного документа до іншого.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Перейменувати компонування або вікно в усіх компонуваннях.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Перемістити компонування на інше місце в його групі.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Вилучити компонування з документа.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Використання: panorel КОМАНДА ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help КОМАНДА&quot; пояснює, як користуватися командою. FILE — це документ компонувань, стан одного вікна або файл налаштувань, що містить такі стани; &quot;-&quot; — стандартний ввід.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Запустити програму Qt 5 з меню для компонувань її вікон.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Запускати програму зі стільниці через &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>не вдалося записати до стандартного виводу</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>має кілька компонувань; виберіть одне за допомогою --group і --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Лише в %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Відмінностей немає</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вивести JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Порівняти компонування з --view із цим; якщо B не вказано — з того самого файлу.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>НАЗВА</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>немає з чим порівнювати</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>Файл для запису; &quot;-&quot; — стандартний вивід.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВИВІД</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>Група компонування.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>НАЗВА</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>Компонування.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>не вказано параметр %1; наявні: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Замінити компонування, назви яких уже є.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Скопіювати компонування під іншою назвою, якщо їхня назва вже є.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace і --keep-both виключають одне одного</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>Вікно, яке слід перейменувати в усіх компонуваннях.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>Нова назва.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>вікно перейменовується в усіх компонуваннях</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>Компонування, перед яким слід розташувати це.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>ІНШЕ</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Розташувати після всіх інших.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>потрібен параметр --before або --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>для --%1 потрібне число</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>не містить компонувань</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(без назви)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(поточне компонування)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(панелі інструментів)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Читати файли, не більші за цей розмір у MiB; типово %1; 0 знімає обмеження.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>не є документом компонувань</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>записується повністю заново через тип документа або кодування</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>пошкоджено</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>пошкоджено: %1</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не вдалося прочитати</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>такого файлу запуску немає</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>не запускає жодної програми</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>запускає програму з власною Qt, яка не завантажує модулів</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>ваш власний файл запуску, він лишається без змін</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Не змінювати панелі інструментів під час перемикання компонування.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Знову прибрати файл запуску.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Компонування вікон</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>для --size потрібні ширина та висота до %1 пікселів, наприклад 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>зображення завелике; виберіть одне вікно за допомогою --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>зображення завелике</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>Зображення для запису: SVG, якщо назва закінчується на &quot;.svg&quot;, інакше PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВИВІД</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Розмір кожного вікна в пікселях; якщо не вказано — власний, не більше %1 завширшки.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>ШxВ</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Малювати темними кольорами.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>не містить стану вікна</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>не вдається запустити</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Не змінювати панелі інструментів під час перемикання компонування.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Показати, які програми мають компонування, нічого не запускаючи.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>з --list програму не вказують</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>не вказано програму</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>модуль не встановлено (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Вікно &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Дані користувача: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Група &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Компонування &quot;%1&quot; (активне)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Компонування &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Поточне компонування</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Панелі інструментів на час запису</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Вивести JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>ліворуч</translation>
    </message>
    <message>
        <source>right</source>
        <translation>праворуч</translation>
    </message>
    <message>
        <source>top</source>
        <translation>вгорі</translation>
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
        <translation>(без назви)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>у точці %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(на передньому плані)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Вкладки:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Ліворуч:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Праворуч:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Вгорі:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Внизу:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>На боці, якого не існує:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Плаваючі:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Закриті:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(плаваюча)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(прихована)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Панелі інструментів, %1, рядок %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Не стан вікна, або його пошкоджено (розмір: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Центральна область: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Немає ні прикріплюваних панелей, ні панелей інструментів</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>не все гаразд; див. &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>пропущено: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>стан не записується поверх свого файлу налаштувань</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Записати до цього файлу, а не до стандартного виводу.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>ВИВІД</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Зберегти компонування без назви.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Вилучити стани, з якими не все гаразд, і повідомити про це.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>Стан за адресою РОЗДІЛ/КЛЮЧ у файлі налаштувань.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window призначено для файлів налаштувань</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>має кілька станів; виберіть один за допомогою --window</translation>
    </message>
</context>
</TS>
