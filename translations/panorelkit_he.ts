<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>אין פריסה פעילה.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; פעילה.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>לחיצה עוברת לפריסה הבאה.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;הפריסה הבאה</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>ה&amp;פריסה הקודמת</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;הבדלים מהחלונות הנוכחיים:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;משבצת לקיצור:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>הבדלים מהחלונות הנוכחיים</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>תמונה של &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>אין. החלונות נראים כמו בפריסה זו.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>ללא</translation>
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
        <translation>כתיבת כל הפריסות לקובץ</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>החלפת כל הפריסות באלה שבקובץ</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>הוספת הפריסות שבקובץ, במקום פריסות בעלות אותו שם</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;קבוצה</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>שלך באותו שם:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>ייבוא פריסות</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;פריסות ב-&quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>הפריסות שבקובץ</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>בקובץ:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;שמירת שתיהן</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;החלפת שלך</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;דילוג</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;בחירת הכול</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>ב&amp;יטול הבחירה</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>ייב&amp;וא</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>תמונה של &quot;%1&quot; שבקובץ</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>תמונה של &quot;%1&quot; שלך</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>השם תפוס:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>תחליף את הפריסה שלך בשם זה</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>תתווסף בשם &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>תתווסף</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>כבר קיימת אצלך</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>לא תיובא, השם תפוס</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>לא תיובא</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>הפריסות שב-%1 שייכות לגרסה אחרת של תוכנית זו. הן יישארו ללא שינוי.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>הקובץ פגום.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>חלק מהפריסות שב-%1 פגומות והושמטו.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>הקובץ שייך לגרסה אחרת של תוכנית זו, או שהוא פגום.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>לא ניתן היה לשמור את הפריסות ב-%1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>לא ניתן לקרוא את הקובץ עם הפריסות שלך, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>הקובץ נשמר בשם %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>הקובץ יישאר ללא שינוי, ופריסות לא יישמרו בהפעלה זו.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>נ&amp;יהול פריסות...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>שינוי השם של &quot;%1&quot; ל-&quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>מחיקת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>מחיקת פריסות</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>שכפול &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>שכפול פריסות</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>העברת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>העברת פריסות</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>ייבוא &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>יובא מ-&quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>יוצא אל &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>פריסות</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול פעולה</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ביצוע חוזר</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>מ&amp;עבר</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;שינוי שם</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>ש&amp;כפול</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>מ&amp;חיקה</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>העברה &amp;למעלה</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>הע&amp;ברה למטה</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;ייצוא...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>העב&amp;רה לקבוצה</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>ייב&amp;וא...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>מסדר את החלונות כמו בפריסה שנבחרה</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>משבצת %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>שונתה</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>פעילה</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>אין עדיין פריסות. ניתן לשמור פריסה בתפריט &quot;פריסות&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;נעילת הפריסה</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>לא ניתן להזיז, לנתק או לסגור דבר בטעות</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>שמירת הפריסה</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>שמירת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>חזרה לפריסה</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>חזרה אל &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>ועוד</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>שם הפריסה</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>שם חדש, ואז Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>שם הפריסה החדשה</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>לפריסה דרוש שם: יש להקליד שם ואז להקיש Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;שימוש בקיצורי מקשים</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 עד %2 עוברים לפריסות שהמקשים האלה הוקצו להן</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>משבצת %1 ריקה</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; אינו קובץ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>לא ניתן לכתוב את &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>הפריסות יוצאו אל &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>אין בקובץ פריסות</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; לא יובא: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>אין ב-&quot;%1&quot; פריסות עבור תוכנית זו.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>לא ניתן לקרוא את &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>הפריסות שב-&quot;%1&quot; יובאו.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>הפריסות שב-&quot;%1&quot; יובאו; חלקים פגומים הושמטו.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>משמאל</translation>
    </message>
    <message>
        <source>right</source>
        <translation>מימין</translation>
    </message>
    <message>
        <source>top</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>למטה</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(ללא שם)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 כבר לא לשונית</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>הלשונית %1 נמצאת כעת בחזית</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 כעת לשונית לצד %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>המיקום של %1 בשולחן העבודה השתנה</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 כעת חלון נפרד</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 כבר לא חלון נפרד</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>המיקום של %1 כעת לצד השכנים</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>המיקום של %1 כעת מעל השכנים או מתחתם</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>המיקום של %1 בין השכנים השתנה</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>המיקום של %1 השתנה משורה %2 לשורה %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>נוסף: %1</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>הוסר: %1</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>המיקום של %1 השתנה: היה %2, כעת %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>פתוח: %1</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>סגור: %1</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>הגודל של %1 השתנה מ-%2 ל-%3</translation>
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
        <translation>שינוי השם של &quot;%1&quot; ל-&quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>יצירת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>מחיקת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>שמירת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>שינוי סדר הפריסות</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>מעבר אל &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>מעבר לקבוצה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>חזרה אל &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>שינוי פריסות</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>ייבוא &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>לא ניתן לייבא דבר מ-&quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>פגום, ולכן הושמט: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>ללא החלקים הפגומים: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>מקבוצות שאינן בתוכנית זו, ולכן הושמט: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; לא יכול להופיע כאן בתוך &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; אינו רכיב השורש &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; חסר ב-&quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>ל-&quot;%2&quot; חסרה התכונה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>ל-&quot;%2&quot; יש תכונה לא מוכרת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; לא יכול להיות &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>לא יכול להיות טקסט בתוך &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>מספר הספרות במצב שבתוך &quot;%1&quot; אינו זוגי</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>לפריסה דרוש שם.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>שם אינו יכול להכיל תווי בקרה.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>כבר קיימת פריסה בשם זה.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>הקובץ גדול מהמגבלה של %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>זה אינו קובץ רגיל</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>הקובץ ריק</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>אין פריסות בקובץ</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>לחלון העגינה &quot;%1&quot; אין שם אובייקט.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>לכמה חלונות עגינה יש שם אובייקט &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>לסרגל הכלים &quot;%1&quot; אין שם אובייקט.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>לכמה סרגלי כלים יש שם אובייקט &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>חלון העגינה &quot;%1&quot; אינו באף אחד מאזורי החלון.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>לחלון &quot;%1&quot; אין רכיב מרכזי.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;פריסות</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>פריסות</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>חלונות עגינה נמצאים בצד שאינו קיים</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>המצב פגום</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>חלונות עגינה מקוננים עמוק מדי</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>המצב מתאר יותר ממה שיכול להיות בחלון</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>המסמך פגום: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>המסמך אינו מסמך פריסות: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>למסמך גרסה לא מוכרת &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>זה אינו מצב של חלון</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>לפריסה אין שם</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>לכמה פריסות יש השם &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>לחלון עגינה או לסרגל כלים אין שם</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>לכמה חלונות עגינה או סרגלי כלים יש השם &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>המיזוג הכפיל חלונות עגינה או סרגלי כלים</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>חלונות עגינה צפים כלשוניות; מיזוג מצב זה יגרום לאובדן סרגלי הכלים שלו</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>סרגלי כלים נמצאים בצד שאינו קיים</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>ביטול פעולה</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>ביטול פעולה: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ביצוע חוזר</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>ביצוע חוזר: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>הצגת הכפתור בסרגל כלים</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>פריסות</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>אין פקודה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>אין פקודה &quot;%1&quot;; ר׳ &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>בית %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>מסמך</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>תקין</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>לא מדפיס דבר.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>מדפיס JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>אין קבוצה &quot;%1&quot;; קיימות: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>אין פריסה &quot;%1&quot;; קיימות: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>אין חלון &quot;%1&quot;; קיימים: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>לא ניתן לשלב את --view עם --current</translation>
    </message>
    <message>
        <source>none</source>
        <translation>אין</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>רק קבוצה זו.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>רק פריסה זו.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>רק הפריסה הנוכחית של קבוצה.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>רק חלון זה; בקובץ הגדרות, המצב שב-SECTION/KEY.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>מזהה</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>אין קבוצות וגם לא פריסות בעלות שם</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>הוא מצב של חלון יחיד, שאין לו מזהה</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>מציג עזרה זו.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>מציג את הגרסה.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>חסר קובץ</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>יותר מדי קבצים</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 צוין יותר מפעם אחת</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>חסרה האפשרות %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; ר׳ &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>מציין אם חלונות יכולים לקבל את הפריסות שבקבצים ללא נזק.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>מציג מה כתוב בפריסות שבקובץ.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>מציג במה נבדלות פריסות.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>מצייר פריסה כתמונה, PNG או SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>משמיט את מה שהמיזוג הכפיל, ופריסות ללא שם.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>מעתיק פריסות ממסמך אחד לאחר.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>משנה שם של פריסה, או של חלון בכל הפריסות.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>מעביר פריסה למקום אחר בקבוצה שלה.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>מסיר פריסות ממסמך.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>שימוש: panorel COMMAND ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMMAND&quot; מסביר כיצד להשתמש בפקודה. FILE הוא מסמך פריסות, מצב של חלון יחיד או קובץ הגדרות שמכיל מצבים כאלה; &quot;-&quot; הוא הקלט הסטנדרטי.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>מפעיל תוכנית Qt 5 עם תפריט לפריסות של חלונותיה.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>גורם לשולחן העבודה להפעיל תוכנית באמצעות &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>לא ניתן לכתוב לפלט הסטנדרטי</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>יש כמה פריסות; יש לבחור אחת באמצעות --group וגם --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>רק ב-%1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>אין הבדלים</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>מדפיס JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>משווה את הפריסה של --view לפריסה זו, מאותו קובץ אם אין B.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>אין למה להשוות</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>הקובץ שייכתב; &quot;-&quot; הוא הפלט הסטנדרטי.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>פלט</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>הקבוצה של הפריסה.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>הפריסה.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>חסרה האפשרות %1; קיימות: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>מחליף פריסות ששמותיהן כבר קיימים.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>מעתיק פריסות בשם אחר אם שמן כבר קיים.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>לא ניתן לשלב את --replace עם --keep-both</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>החלון ששמו ישתנה בכל הפריסות.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>מזהה</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>השם החדש.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>שם של חלון משתנה בכל הפריסות</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>הפריסה שלפניה היא תמוקם.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>אחרת</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>מעביר אותה אל אחרי כל האחרות.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>דרוש --before או --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>לאפשרות --%1 דרוש מספר</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>אין פריסה</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(ללא שם)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(פריסה נוכחית)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(סרגלי כלים)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>קורא קבצים עד גודל זה ב-MiB, %1 אם לא צוין; 0 מבטל את המגבלה.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>אינו מסמך פריסות</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>נכתב מחדש בשלמותו בגלל סוג המסמך או הקידוד</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>פגום</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 במצב פגום</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>לא ניתן לקריאה</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>אין משגר כזה</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>אינו מפעיל תוכנית</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>מפעיל תוכנית שיש לה Qt משלה, שאינו טוען תוספים</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>הוא משגר שיצרת ונשאר כפי שהוא</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>משאיר את סרגלי הכלים כפי שהם בעת מעבר לפריסה אחרת.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>מסיר שוב את המשגר.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>פריסת חלון</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>לאפשרות --size דרושים רוחב וגובה של עד %1 פיקסלים, כגון 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>התמונה גדולה מדי; יש לבחור חלון אחד באמצעות --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>התמונה גדולה מדי</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>התמונה שתיכתב: SVG אם השם מסתיים ב-&quot;.svg&quot;, אחרת PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>פלט</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>הגודל של כל חלון בפיקסלים; אם לא צוין, גודלו של החלון עצמו, ברוחב של עד %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>מצייר בצבעים כהים.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>אין מצב של חלון</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>לא ניתן להפעיל</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>משאיר את סרגלי הכלים כפי שהם בעת מעבר לפריסה אחרת.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>מציג לאילו תוכניות יש פריסות, ואינו מפעיל דבר.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list אינו מקבל תוכנית</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>חסרה תוכנית</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>התוסף אינו מותקן (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>חלון &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>נתוני משתמש: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>קבוצה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>פריסה &quot;%1&quot; (פעילה)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>פריסה &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>פריסה נוכחית</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>סרגלי הכלים בעת כתיבת המסמך</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>מדפיס JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>משמאל</translation>
    </message>
    <message>
        <source>right</source>
        <translation>מימין</translation>
    </message>
    <message>
        <source>top</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>למטה</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(ללא שם)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>במיקום %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(בחזית)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>לשוניות:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>משמאל:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>מימין:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>למעלה:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>למטה:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>בצד שאינו קיים:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>צפים:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>סגורים:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(צף)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(מוסתר)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>סרגלי כלים, %1, שורה %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>לא מצב של חלון, או פגום (גודל: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>אזור מרכזי: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>אין חלונות עגינה ואין סרגלי כלים</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>אינו תקין; ר׳ &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>הושמט: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>מצב אינו נכתב על קובץ ההגדרות שלו</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>כותב לקובץ זה ולא לפלט הסטנדרטי.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>פלט</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>משאיר פריסות ללא שם.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>משמיט מצבים שאינם תקינים, ומציין זאת.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>המצב שב-SECTION/KEY בקובץ הגדרות.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>מזהה</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>האפשרות --window מיועדת לקובצי הגדרות</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>יש כמה מצבים; יש לבחור אחד באמצעות --window</translation>
    </message>
</context>
</TS>
