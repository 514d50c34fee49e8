#include "logic/Texts.h"

#include <algorithm>
#include <atomic>
#include <string_view>
#include <vector>

namespace workbench
{

namespace
{

constexpr unsigned short primary_language_mask = 0x3FF;

/// A text in all languages, by their numbers.
using Entry = wchar_t const * [language_count];

constexpr Entry all_entries[] = {
    // The main window.
    {L"&Window", L"Fen&ster", L"&Ventana"},
    {L"No recordings", L"Keine Aufnahmen", L"No hay grabaciones"},
    {L"Open WAV files or a folder to see them here.",
     L"Öffnen Sie WAV-Dateien oder einen Ordner, um sie hier zu sehen.",
     L"Abra archivos WAV o una carpeta para verlos aquí."},
    {L"There are no WAV files in this folder.", L"In diesem Ordner sind keine WAV-Dateien.",
     L"En esta carpeta no hay archivos WAV."},
    {L"&Apply", L"Ü&bernehmen", L"A&plicar"},
    {L"Usual colours", L"Übliche Farben", L"Colores habituales"},
    {L"Dark", L"Dunkel", L"Oscuro"},
    {L"High contrast (the system's colours)", L"Hoher Kontrast (Farben des Systems)",
     L"Contraste alto (colores del sistema)"},
    {L"As the system has it", L"Wie im System", L"Como en el sistema"},
    {L"Folders", L"Ordner", L"Carpetas"},
    {L"Spectrogram", L"Spektrogramm", L"Espectrograma"},
    {L"Measures", L"Messwerte", L"Medidas"},
    {L"Analysis Frames", L"Analyseabschnitte", L"Tramos de análisis"},
    {L"Ctrl+", L"Strg+", L"Ctrl+"},
    {L"Comparison", L"Vergleich", L"Comparación"},
    {L"No recording", L"Keine Aufnahme", L"Ninguna grabación"},
    {L"No recording chosen", L"Keine Aufnahme gewählt", L"Ninguna grabación seleccionada"},
    {L"Choose a recording in the list to see it here.", L"Wählen Sie in der Liste eine Aufnahme, um sie hier zu sehen.",
     L"Seleccione una grabación en la lista para verla aquí."},
    {L"reading...", L"wird gelesen...", L"leyendo..."},
    {L"not read yet", L"noch nicht gelesen", L"aún sin leer"},
    {L"not read", L"nicht gelesen", L"sin leer"},
    {L"No recordings yet", L"Noch keine Aufnahmen", L"Aún no hay grabaciones"},
    {L"Recordings are being looked for.", L"Aufnahmen werden gesucht.", L"Buscando grabaciones."},
    {L"Folder not found", L"Ordner nicht gefunden", L"Carpeta no encontrada"},
    {L"This folder does not exist or cannot be read:", L"Diesen Ordner gibt es nicht, oder er ist nicht lesbar:",
     L"Esta carpeta no existe o no se puede leer:"},
    {L"folder not found:", L"Ordner nicht gefunden:", L"carpeta no encontrada:"},
    {L"folders not found:", L"Ordner nicht gefunden:", L"carpetas no encontradas:"},
    {L"Cancel", L"Abbruch", L"Cancelar"},
    {L"Reference", L"Bezug", L"Referencia"},
    {L"against it,", L"dagegen hat", L"respecto a ella,"},
    {L"has peak", L"Spitze", L"tiene un pico de"},
    {L"recording", L"Aufnahme", L"grabación"},
    {L"recordings", L"Aufnahmen", L"grabaciones"},
    {L"being read", L"werden gelesen", L"en lectura"},
    {L"shown", L"angezeigt", L"mostradas"},
    {L"Filter:", L"Filter:", L"Filtro:"},
    {L"Marked", L"Markierte", L"Con marca"},
    {L"Any rating", L"Jede Bewertung", L"Toda valoración"},
    {L"Any status", L"Jeder Zustand", L"Todo estado"},
    {L"Undamaged", L"Unbeschädigte", L"Sin daños"},
    {L"Damaged", L"Beschädigte", L"Dañadas"},
    {L"Not readable", L"Nicht lesbare", L"No legibles"},
    {L"No recording fits the filter.", L"Keine Aufnahme passt zum Filter.", L"Ninguna grabación cumple el filtro."},
    {L"cannot be shown", L"nicht darstellbar", L"con error"},
    {L"marked", L"markiert", L"con marca"},
    {L"marks and comments cannot be stored", L"Markierungen und Kommentare lassen sich nicht speichern",
     L"no se pueden guardar las marcas ni los comentarios"},
    {L"Levels refer to a full-scale sine: 0 dBFS peak, %s dBFS RMS",
     L"Pegel beziehen sich auf einen voll ausgesteuerten Sinus: 0 dBFS Spitze, %s dBFS RMS",
     L"Los niveles se refieren a una senoidal a fondo de escala: 0 dBFS de pico, %s dBFS RMS"},
    // Opening.
    {L"WAV recordings (*.wav;*.wave)|*.wav;*.wave|All files (*.*)|*.*||",
     L"WAV-Aufnahmen (*.wav;*.wave)|*.wav;*.wave|Alle Dateien (*.*)|*.*||",
     L"Grabaciones WAV (*.wav;*.wave)|*.wav;*.wave|Todos los archivos (*.*)|*.*||"},
    {L"This is not there any more:", L"Dies gibt es nicht mehr:", L"Esto ya no existe:"},
    {L"Open Recordings", L"Aufnahmen öffnen", L"Abrir grabaciones"},
    {L"Open Folder", L"Ordner öffnen", L"Abrir carpeta"},
    {L"Type the name of a folder, or choose one.", L"Geben Sie den Namen eines Ordners ein, oder wählen Sie einen.",
     L"Escriba el nombre de una carpeta o elija una."},
    {L"There is no folder of this name.", L"Einen Ordner mit diesem Namen gibt es nicht.",
     L"No existe ninguna carpeta con este nombre."},
    {L"Choose a folder with recordings:", L"Wählen Sie einen Ordner mit Aufnahmen:",
     L"Elija una carpeta con grabaciones:"},
    // The list.
    {L"Name", L"Name", L"Nombre"},
    {L"Ref.", L"Bez.", L"Ref."},
    {L"Waveform", L"Verlauf", L"Forma de onda"},
    {L"Duration", L"Dauer", L"Duración"},
    {L"Channels", L"Kanäle", L"Canales"},
    {L"Rate (Hz)", L"Rate (Hz)", L"Frec. (Hz)"},
    {L"Peak (dBFS)", L"Spitze (dBFS)", L"Pico (dBFS)"},
    {L"RMS (dBFS)", L"RMS (dBFS)", L"RMS (dBFS)"},
    {L"Date", L"Datum", L"Fecha"},
    {L"Rating", L"Bewertung", L"Valoración"},
    {L"Comment", L"Kommentar", L"Comentario"},
    {L"Status", L"Zustand", L"Estado"},
    {L"Crest (dB)", L"Scheitel (dB)", L"Cresta (dB)"},
    {L"Loudness (LUFS)", L"Lautheit (LUFS)", L"Sonoridad (LUFS)"},
    {L"Frequency (Hz)", L"Frequenz (Hz)", L"Frecuencia (Hz)"},
    {L"Distortion (%)", L"Klirrfaktor (%)", L"Distorsión (%)"},
    {L"Not rated", L"Nicht bewertet", L"Sin valorar"},
    {L"(all)", L"(alle)", L"(todas)"},
    {L"Good", L"Gut", L"Buena"},
    {L"Usable", L"Brauchbar", L"Utilizable"},
    {L"Rejected", L"Verworfen", L"Descartada"},
    {L"No recordings. Open files or a folder.", L"Keine Aufnahmen. Öffnen Sie Dateien oder einen Ordner.",
     L"No hay grabaciones. Abra archivos o una carpeta."},
    {L"&Details...\tAlt+Enter", L"&Einzelheiten...\tAlt+Eingabe", L"&Detalles...\tAlt+Entrar"},
    {L"Set as &reference\tCtrl+R", L"Als &Bezug setzen\tStrg+R", L"Usar como &referencia\tCtrl+R"},
    {L"In a &window of its own\tCtrl+N", L"In eigenem &Fenster\tStrg+N", L"En &ventana propia\tCtrl+N"},
    {L"Edit &comment\tF2", L"K&ommentar bearbeiten\tF2", L"Editar &comentario\tF2"},
    {L"Ra&te...\tF4", L"Be&werten...\tF4", L"Va&lorar...\tF4"},
    {L"Read &again\tCtrl+F5", L"Er&neut lesen\tStrg+F5", L"Leer &otra vez\tCtrl+F5"},
    {L"&Mark all\tCtrl+A", L"Alle &markieren\tStrg+A", L"&Marcar todas\tCtrl+A"},
    {L"Mark &none\tCtrl+Shift+A", L"&Keine markieren\tStrg+Umschalt+A", L"Marcar &ninguna\tCtrl+Mayús+A"},
    {L"Re&load everything\tF5", L"Alles neu &laden\tF5", L"Volver a car&gar todo\tF5"},
    // A recording.
    {L"Cannot be shown", L"Nicht darstellbar", L"No se puede mostrar"},
    {L"This file is damaged", L"Diese Datei ist beschädigt", L"Este archivo está dañado"},
    {L"-bit float", L" Bit Gleitkomma", L" bits, coma flotante"},
    {L"-bit PCM", L" Bit PCM", L" bits PCM"},
    {L"-bit", L" Bit", L" bits"},
    {L"channel", L"Kanal", L"canal"},
    {L"channels", L"Kanäle", L"canales"},
    {L"are shown", L"sind zu sehen", L"primeros"},
    {L"the first", L"die ersten", L"se muestran los"},
    {L"Left", L"Links", L"Izquierdo"},
    {L"Right", L"Rechts", L"Derecho"},
    {L"cut off, should be", L"abgeschnitten, Soll", L"truncada, debería durar"},
    {L"has invalid samples", L"hat ungültige Werte", L"contiene muestras no válidas"},
    {L"OK", L"In Ordnung", L"Correcto"},
    {L"cannot be opened", L"lässt sich nicht öffnen", L"no se puede abrir"},
    {L"not a WAV file", L"keine WAV-Datei", L"no es un archivo WAV"},
    {L"big-endian WAV (RIFX)", L"WAV mit hohem Byte zuerst (RIFX)", L"WAV en orden big-endian (RIFX)"},
    {L"64-bit WAV (RF64)", L"64-Bit-WAV (RF64)", L"WAV de 64 bits (RF64)"},
    {L"cut off before the first sample", L"vor dem ersten Wert abgeschnitten", L"truncado antes de la primera muestra"},
    {L"damaged header", L"beschädigter Kopf", L"cabecera dañada"},
    {L"empty, no samples", L"leer, keine Werte", L"vacío, sin muestras"},
    {L"unknown format (%u-bit %ls)", L"unbekanntes Format (%u Bit %ls)", L"formato desconocido (%u bits, %ls)"},
    {L"PCM", L"PCM", L"PCM"},
    {L"float", L"Gleitkomma", L"coma flotante"},
    {L"unknown format (tag 0x%04X)", L"unbekanntes Format (Kennung 0x%04X)", L"formato desconocido (etiqueta 0x%04X)"},
    {L"The spectrogram is being computed.", L"Das Spektrogramm wird berechnet.", L"Calculando el espectrograma."},
    {L"the loudest of", L"der lauteste von", L"el más intenso de"},
    // Its details.
    {L"Recording Details", L"Einzelheiten der Aufnahme", L"Detalles de la grabación"},
    {L"File", L"Datei", L"Archivo"},
    {L"Folder", L"Ordner", L"Carpeta"},
    {L"Size", L"Größe", L"Tamaño"},
    {L"byte", L"Byte", L"byte"},
    {L"bytes", L"Bytes", L"bytes"},
    {L"Format", L"Format", L"Formato"},
    {L"Sample rate", L"Abtastrate", L"Muestreo"},
    {L"sample", L"Wert", L"muestra"},
    {L"samples", L"Werte", L"muestras"},
    {L"Peak level", L"Spitzenpegel", L"Nivel de pico"},
    {L"RMS level", L"Effektivpegel", L"Nivel RMS"},
    {L"Crest factor", L"Scheitelfaktor", L"Factor de cresta"},
    {L"Loudness", L"Lautheit", L"Sonoridad"},
    {L"Strongest frequency", L"Stärkste Frequenz", L"Frecuencia dominante"},
    {L"Harmonic distortion", L"Klirrfaktor", L"Distorsión armónica"},
    {L"selected", L"ausgewählt", L"seleccionado"},
    {L"There is no audio device to play the recording on.",
     L"Es gibt kein Audiogerät, das die Aufnahme abspielen könnte.",
     L"No hay ningún dispositivo de audio para reproducir la grabación."},
    {L"The recording cannot be read any more.", L"Die Aufnahme lässt sich nicht mehr lesen.",
     L"La grabación ya no se puede leer."},
    {L"Pictures (*.png)|*.png||", L"Bilder (*.png)|*.png||", L"Imágenes (*.png)|*.png||"},
    {L"Save Picture", L"Bild speichern", L"Guardar imagen"},
    // The report.
    {L"Save Report", L"Bericht speichern", L"Guardar informe"},
    {L"Web page (*.html)|*.html||", L"Webseite (*.html)|*.html||", L"Página web (*.html)|*.html||"},
    {L"Report on Recordings", L"Bericht über Aufnahmen", L"Informe de grabaciones"},
    {L"en", L"de", L"es"},
    {L"Overview", L"Übersicht", L"Resumen"},
    {L"Report", L"Bericht", L"Informe"},
    {L"report being written", L"Bericht wird geschrieben", L"informe en curso"},
    {L"list written:", L"Liste geschrieben:", L"lista guardada:"},
    {L"frames written:", L"Abschnitte geschrieben:", L"tramos guardados:"},
    {L"Copying recordings", L"Aufnahmen werden kopiert", L"Copiando grabaciones"},
    {L"Exporting recordings", L"Aufnahmen werden exportiert", L"Exportando grabaciones"},
    {L"report written:", L"Bericht geschrieben:", L"informe guardado:"},
    {L"By the sample rate", L"Nach der Abtastrate", L"Según la frecuencia de muestreo"},
    {L"Linear", L"Linear", L"Lineal"},
    {L"Logarithmic", L"Logarithmisch", L"Logarítmica"},
    {L"&Previous recording\tCtrl+Page Up", L"&Vorige Aufnahme\tStrg+Bild auf", L"Grabación &anterior\tCtrl+Re Pág"},
    {L"&Next recording\tCtrl+Page Down", L"&Nächste Aufnahme\tStrg+Bild ab", L"Grabación &siguiente\tCtrl+Av Pág"},
    {L"Show in the &list", L"In der &Liste zeigen", L"Mostrar en la &lista"},
    {L"Set as &reference", L"Als &Bezug setzen", L"Usar como &referencia"},
    // The displays.
    {L"Position", L"Position", L"Posición"},
    {L"Peak of 10 ms (dBFS)", L"Spitze in 10 ms (dBFS)", L"Pico de 10 ms (dBFS)"},
    {L"S&pectrogram colours:", L"S&pektrogrammfarben:", L"Colores del es&pectrograma:"},
    {L"Print Preview", L"Druckvorschau", L"Vista previa de impresión"},
    {L"Fit waveform to its peak", L"Kurve an ihre Spitze anpassen", L"Ajustar la forma de onda a su pico"},
    {L"Amplification", L"Verstärkung", L"Amplificación"},
    {L"Amplification of the waveform", L"Verstärkung der Kurve", L"Amplificación de la forma de onda"},
    // The export of the list.
    {L"Export List", L"Liste exportieren", L"Exportar lista"},
    {L"Text with tabs (*.txt)|*.txt|CSV (*.csv)|*.csv|Web page (*.html)|*.html|All files (*.*)|*.*||",
     L"Text mit Tabulatoren (*.txt)|*.txt|CSV (*.csv)|*.csv|Webseite (*.html)|*.html|Alle Dateien (*.*)|*.*||",
     L"Texto con tabulaciones (*.txt)|*.txt|CSV (*.csv)|*.csv|Página web (*.html)|*.html|Todos (*.*)|*.*||"},
    {L"All", L"Alle", L"Todas"},
    {L"The selected ones", L"Die gewählten", L"Las seleccionadas"},
    {L"The marked ones", L"Die markierten", L"Las marcadas"},
    {L"Rename", L"Umbenennen", L"Cambiar nombre"},
    {L"A file cannot have this name.", L"So kann keine Datei heißen.", L"Un archivo no puede llamarse así."},
    {L"The file could not be renamed.", L"Die Datei konnte nicht umbenannt werden.",
     L"No se pudo cambiar el nombre del archivo."},
    {L"Move this file to the trash?", L"Diese Datei in den Papierkorb legen?", L"¿Enviar este archivo a la papelera?"},
    {L"Move these %s files to the trash?", L"Diese %s Dateien in den Papierkorb legen?",
     L"¿Enviar estos %s archivos a la papelera?"},
    {L"and %s more", L"und %s weitere", L"y %s más"},
    {L"This file could not be moved to the trash:", L"Diese Datei ließ sich nicht in den Papierkorb legen:",
     L"No se pudo enviar este archivo a la papelera:"},
    {L"%s files could not be moved to the trash:", L"%s Dateien ließen sich nicht in den Papierkorb legen:",
     L"No se pudieron enviar %s archivos a la papelera:"},
    {L"it is not there any more", L"sie ist nicht mehr da", L"ya no está"},
    {L"the folder is not there any more", L"der Ordner ist nicht mehr da", L"la carpeta ya no está"},
    {L"you have no permission for it", L"Ihnen fehlt die Berechtigung", L"no tiene permiso"},
    {L"the medium is write-protected", L"der Datenträger ist schreibgeschützt", L"el medio está protegido"},
    {L"another program is using it", L"ein anderes Programm benutzt sie", L"otro programa lo está usando"},
    {L"there is a file with this name already", L"es gibt schon eine Datei mit diesem Namen",
     L"ya hay un archivo con este nombre"},
    {L"the medium is full", L"der Datenträger ist voll", L"el medio está lleno"},
    {L"error", L"Fehler", L"error"},
    {L"R&ename...\tShift+F2", L"&Umbenennen...\tUmschalt+F2", L"Cambiar nom&bre...\tMayús+F2"},
    {L"Move to tras&h...\tDel", L"In &den Papierkorb...\tEntf", L"&Enviar a la papelera...\tSupr"},
    {L"&Show in file manager", L"Im Dateimana&ger zeigen", L"Mo&strar en el explorador"},
    {L"Moving recordings to the trash", L"Aufnahmen kommen in den Papierkorb", L"Enviando grabaciones a la papelera"},
    {L"Replace this file?", L"Diese Datei ersetzen?", L"¿Reemplazar este archivo?"},
    {L"Type the whole path of the file, or choose one.",
     L"Geben Sie den ganzen Pfad der Datei ein, oder wählen Sie eine.",
     L"Escriba la ruta completa del archivo o elija uno."},
    {L"This file could not be written:", L"Diese Datei ließ sich nicht schreiben:",
     L"No se pudo escribir este archivo:"},
    // Settings.
    {L"Settings", L"Einstellungen", L"Configuración"},
    {L"The opacity must be between 20 and 100 percent.", L"Die Deckkraft muss zwischen 20 und 100 Prozent liegen.",
     L"La opacidad debe estar entre el 20 y el 100 por ciento."},
    {L"Choose a folder that is opened at the start:", L"Wählen Sie einen Ordner, der beim Start geöffnet wird:",
     L"Elija una carpeta que se abrirá al inicio:"},
    {L"Choose the folder for the settings file:", L"Wählen Sie den Ordner für die Einstellungsdatei:",
     L"Elija la carpeta para el archivo de configuración:"},
    {L"Choose the folder that has the settings file:", L"Wählen Sie den Ordner mit der Einstellungsdatei:",
     L"Elija la carpeta que contiene el archivo de configuración:"},
    {L"The settings could not be written to this file:",
     L"Die Einstellungen ließen sich nicht in diese Datei schreiben:",
     L"No se pudo escribir la configuración en este archivo:"},
    {L"The settings are in this file now:", L"Die Einstellungen stehen jetzt in dieser Datei:",
     L"La configuración se ha guardado en este archivo:"},
    {L"This folder has no settings file:", L"In diesem Ordner ist keine Einstellungsdatei:",
     L"En esta carpeta no hay ningún archivo de configuración:"},
    {L"Replace all settings by those in this file?", L"Alle Einstellungen durch die in dieser Datei ersetzen?",
     L"¿Reemplazar toda la configuración por la de este archivo?"},
    {L"The settings are those of the file now.", L"Es gelten jetzt die Einstellungen der Datei.",
     L"Se ha aplicado la configuración del archivo."},
    {L"Only a part of the settings could be taken from this file:",
     L"Nur ein Teil der Einstellungen ließ sich aus dieser Datei übernehmen:",
     L"Solo se pudo tomar una parte de la configuración de este archivo:"},
    {L"This is no settings file, or it cannot be read:",
     L"Dies ist keine Einstellungsdatei, oder sie ist nicht lesbar:",
     L"Este no es un archivo de configuración o no se puede leer:"},
    {L"The settings could not be stored.", L"Die Einstellungen ließen sich nicht speichern.",
     L"No se pudo guardar la configuración."},
    {L"Recordings", L"Aufnahmen", L"Grabaciones"},
    // Analysis frames.
    {L"Time", L"Zeit", L"Tiempo"},
    {L"Peak", L"Spitze", L"Pico"},
    {L"Crest", L"Scheitel", L"Cresta"},
    {L"Frequency", L"Frequenz", L"Frecuencia"},
    {L"Centroid", L"Schwerpunkt", L"Centroide"},
    {L"e.g. > -20 or 100..200", L"z. B. > -20 oder 100..200", L"p. ej. > -20 o 100..200"},
    {L"Frames: %s", L"Abschnitte: %s", L"Tramos: %s"},
    {L"Frames: %s of %s", L"Abschnitte: %s von %s", L"Tramos: %s de %s"},
    {L"measuring, %d %%", L"wird gemessen, %d %%", L"midiendo, %d %%"},
    {L"windows of %s", L"Fenster von %s", L"ventanas de %s"},
    {L"the file ends early", L"die Datei endet vorzeitig", L"el archivo termina antes de tiempo"},
    {L"Exporting: %d %%", L"Export: %d %%", L"Exportando: %d %%"},
    {L"Export...", L"Exportieren...", L"Exportar..."},
    {L"Stop", L"Anhalten", L"Detener"},
    {L"&Copy\tCtrl+C", L"&Kopieren\tStrg+C", L"&Copiar\tCtrl+C"},
    {L"Select &all\tCtrl+A", L"&Alles auswählen\tStrg+A", L"Seleccionar &todo\tCtrl+A"},
    {L"&Export as CSV...", L"Als CSV &exportieren...", L"&Exportar como CSV..."},
    {L"&Sort by", L"&Sortieren nach", L"&Ordenar por"},
    {L"S&how columns", L"Spalten a&nzeigen", L"&Mostrar columnas"},
    {L"Move column to the &left", L"Spalte nach &links", L"Mover columna a la &izquierda"},
    {L"Move column to the &right", L"Spalte nach &rechts", L"Mover columna a la &derecha"},
    {L"A number is missing.", L"Es fehlt eine Zahl.", L"Falta un número."},
    {L"No number:", L"Keine Zahl:", L"No es un número:"},
    {L"CSV tables (*.csv)|*.csv||", L"CSV-Tabellen (*.csv)|*.csv||", L"Tablas CSV (*.csv)|*.csv||"},
    {L"Export Analysis Frames", L"Analyseabschnitte exportieren", L"Exportar tramos de análisis"},
    {L"Choose Display Language", L"Anzeigesprache wählen", L"Elegir idioma"},
    {L"Choose the language of the workbench:", L"Wählen Sie die Sprache der Workbench:",
     L"Elija el idioma de la aplicación:"},
    {L"All windows of the workbench speak it at once.", L"Alle Fenster der Workbench sprechen sie sofort.",
     L"Todas las ventanas de la aplicación lo usan enseguida."},
    {L"There is no printer.", L"Es gibt keinen Drucker.", L"No hay ninguna impresora."},
    {L"The page could not be printed.", L"Die Seite ließ sich nicht drucken.", L"No se pudo imprimir la página."},
    // Help.
    {L"Help", L"Hilfe", L"Ayuda"},
    {L"About", L"Info", L"Acerca de"},
    {L"Version", L"Version", L"Versión"},
    {L"Built with", L"Gebaut mit", L"Construido con"},
    {L"Choose one of the languages in the list.", L"Wählen Sie eine der Sprachen in der Liste.",
     L"Elija uno de los idiomas de la lista."},
};

std::wstring_view English(wchar_t const * const * entry)
{
    return entry[static_cast<std::size_t>(Language::english)];
}

/// The entries in the order of their English texts.
std::vector<wchar_t const * const *> const & Catalogue()
{
    static std::vector<wchar_t const * const *> const catalogue = [] {
        std::vector<wchar_t const * const *> entries(std::begin(all_entries), std::end(all_entries));
        std::ranges::sort(entries, {}, English);
        return entries;
    }();
    return catalogue;
}

/// The language of that number in any country, or null.
LanguageFacts const * FindLanguage(unsigned short languageId)
{
    auto const same = [languageId](LanguageFacts const & facts) {
        return (facts.id & primary_language_mask) == (languageId & primary_language_mask);
    };
    auto const found = std::ranges::find_if(language_facts, same);
    return found == std::end(language_facts) ? nullptr : found;
}

std::atomic<Language> s_language = Language::english;

} // namespace

bool SpeaksLanguage(unsigned short languageId)
{
    return FindLanguage(languageId) != nullptr;
}

Language LanguageOf(unsigned short languageId)
{
    LanguageFacts const * const facts = FindLanguage(languageId);
    return facts != nullptr ? static_cast<Language>(facts - language_facts) : Language::english;
}

void SetLanguage(Language language)
{
    s_language = language;
}

Language PresentLanguage()
{
    return s_language;
}

wchar_t const * Text(wchar_t const * english)
{
    Language const language = s_language.load();
    if (language == Language::english)
    {
        return english;
    }
    std::vector<wchar_t const * const *> const & entries = Catalogue();
    std::wstring_view const wanted(english);
    auto const found = std::ranges::lower_bound(entries, wanted, {}, English);
    if (found == entries.end() || English(*found) != wanted)
    {
        return english;
    }
    auto const * const text = (*found)[static_cast<std::size_t>(language)];
    return text != nullptr ? text : english;
}

} // namespace workbench
