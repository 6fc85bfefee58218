#include "tree/LanguageWords.h"

namespace glossmill::bench {

namespace {

constexpr std::array<LanguageWords, kLanguageCount> kLanguages = {{
    {"en", " ", {"Open", "the", "document", "recent", "window", "save", "your", "folder", "cancel", "settings"}},
    {"de",
     " ",
     {"Öffnen", "Änderung", "größer", "Schließen", "Übersicht", "für", "Ordner", "löschen", "Gerät", "wählen"}},
    {"ru", " ", {"Открыть", "документ", "папка", "окно", "сохранить", "новый", "файл", "удалить", "язык", "для"}},
    {"ja", "", {"開く", "書類", "新規", "保存", "フォルダ", "ウインドウ", "を", "の", "削除", "設定"}},
    {"fr", " ", {"Ouvrir", "le", "document", "récent", "fenêtre", "créer", "modifié", "à", "dossier", "supprimer"}},
    {"zh-Hans", "", {"打开", "文稿", "新建", "存储", "文件夹", "窗口", "的", "删除", "设置", "语言"}},
    {"es", " ", {"Abrir", "el", "documento", "última", "ventana", "añadir", "tamaño", "carpeta", "sesión", "eliminar"}},
    {"ko", " ", {"열기", "문서", "새로운", "저장", "폴더", "윈도우", "삭제", "설정", "언어", "선택"}},
    {"uk", " ", {"Відкрити", "документ", "вікно", "зберегти", "новий", "файл", "вилучити", "мова", "тека", "її"}},
    {"pl", " ", {"Otwórz", "dokument", "okno", "zapisz", "nowy", "usuń", "wyślij", "język", "źródło", "błąd"}},
    {"it", " ", {"Apri", "il", "documento", "è", "finestra", "già", "cartella", "più", "elimina", "lingua"}},
    {"el", " ", {"Άνοιγμα", "έγγραφο", "παράθυρο", "νέο", "αρχείο", "διαγραφή", "γλώσσα", "και", "φάκελος", "για"}},
    {"ar", " ", {"فتح", "مستند", "نافذة", "حفظ", "جديد", "ملف", "حذف", "لغة", "مجلد", "من"}},
    {"sv", " ", {"Öppna", "dokumentet", "fönster", "spara", "på", "ändra", "radera", "språk", "mapp", "välj"}},
    {"tr", " ", {"Aç", "belge", "pencere", "kaydet", "yeni", "değiştir", "sil", "dil", "klasör", "için"}},
    {"pt", " ", {"Abrir", "o", "documento", "não", "janela", "alterações", "pasta", "última", "apagar", "idioma"}},
    {"he", " ", {"פתח", "מסמך", "חלון", "שמור", "חדש", "קובץ", "מחק", "שפה", "תיקייה", "של"}},
    {"hi", " ", {"खोलें", "दस्तावेज़", "विंडो", "सहेजें", "नया", "फ़ाइल", "हटाएँ", "भाषा", "का", "में"}},
    {"cs", " ", {"Otevřít", "dokument", "okno", "uložit", "nový", "změnit", "smazat", "jazyk", "složka", "příští"}},
    {"th", "", {"เปิด", "เอกสาร", "หน้าต่าง", "บันทึก", "ใหม่", "ไฟล์", "ลบ", "ภาษา", "โฟลเดอร์", "ของ"}},
    {"nl",
     " ",
     {"Open", "het", "document", "venster", "bewaar", "nieuwe", "map", "verwijder", "taal", "geïnstalleerd"}},
    {"da", " ", {"Åbn", "dokumentet", "vindue", "arkiver", "på", "ændring", "slet", "sprog", "mappe", "vælg"}},
    {"nb", " ", {"Åpne", "dokumentet", "vindu", "arkiver", "på", "endring", "slett", "språk", "mappe", "før"}},
    {"fi", " ", {"Avaa", "asiakirja", "ikkuna", "tallenna", "uusi", "tiedosto", "poista", "kieli", "kansio", "tämä"}},
    {"sk", " ", {"Otvoriť", "dokument", "okno", "uložiť", "nový", "zmeniť", "vymazať", "jazyk", "priečinok", "ďalší"}},
    {"hu",
     " ",
     {"Megnyitás", "dokumentum", "ablak", "mentés", "új", "törlés", "nyelv", "mappa", "következő", "gyűjtő"}},
    {"ro", " ", {"Deschide", "documentul", "fereastră", "salvează", "nou", "șterge", "limbă", "dosar", "și", "în"}},
    {"hr", " ", {"Otvori", "dokument", "prozor", "spremi", "novi", "izbriši", "jezik", "mapa", "sljedeći", "uređaj"}},
    {"sl", " ", {"Odpri", "dokument", "okno", "shrani", "nov", "izbriši", "jezik", "mapa", "naslednji", "več"}},
    {"et", " ", {"Ava", "dokument", "aken", "salvesta", "uus", "kustuta", "keel", "kaust", "järgmine", "või"}},
    {"lv", " ", {"Atvērt", "dokuments", "logs", "saglabāt", "jauns", "dzēst", "valoda", "mape", "nākamais", "šis"}},
    {"lt",
     " ",
     {"Atverti", "dokumentas", "langas", "įrašyti", "naujas", "ištrinti", "kalba", "aplankas", "kitas", "ši"}},
    {"bg", " ", {"Отвори", "документ", "прозорец", "запази", "нов", "файл", "изтрий", "език", "папка", "със"}},
    {"sr", " ", {"Отвори", "документ", "прозор", "сачувај", "нови", "датотека", "обриши", "језик", "фасцикла", "за"}},
    {"mk", " ", {"Отвори", "документ", "прозорец", "зачувај", "нов", "датотека", "избриши", "јазик", "папка", "од"}},
    {"fa", " ", {"باز", "سند", "پنجره", "ذخیره", "جدید", "پرونده", "حذف", "زبان", "پوشه", "از"}},
    {"vi", " ", {"Mở", "tài", "liệu", "cửa", "sổ", "lưu", "mới", "xóa", "ngôn", "ngữ"}},
    {"id", " ", {"Buka", "dokumen", "jendela", "simpan", "baru", "berkas", "hapus", "bahasa", "folder", "untuk"}},
    {"ms", " ", {"Buka", "dokumen", "tetingkap", "simpan", "baharu", "fail", "padam", "bahasa", "folder", "untuk"}},
    {"zh-Hant", "", {"打開", "文件", "新增", "儲存", "檔案夾", "視窗", "的", "刪除", "設定", "語言"}},
}};

}  // namespace

const std::array<LanguageWords, kLanguageCount>& languageWords() {
  return kLanguages;
}

std::string translationText(const LanguageWords& language, Random& random) {
  const std::size_t words = 2 + random.below(4);
  std::string text;
  for (std::size_t word = 0; word < words; ++word) {
    if (word > 0) text += language.separator;
    text += random.pick(language.words);
  }
  if (random.oneIn(16)) text += " %@";
  return text;
}

}  // namespace glossmill::bench
