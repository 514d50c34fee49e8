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
constexpr unsigned short german_language = 0x07;

struct Entry
{
    wchar_t const * english;
    wchar_t const * german;
};

constexpr Entry all_entries[] = {
    // The main window.
    {L"&Window", L"Fen&ster"},
    {L"No recordings", L"Keine Aufnahmen"},
    {L"Open WAV files or a folder to see them here.",
     L"Öffnen Sie WAV-Dateien oder einen Ordner, um sie hier zu sehen."},
    {L"There are no WAV files in this folder.", L"In diesem Ordner sind keine WAV-Dateien."},
    {L"&Apply", L"Ü&bernehmen"},
    {L"Folders", L"Ordner"},
    {L"Spectrogram", L"Spektrogramm"},
    {L"Measures", L"Messwerte"},
    {L"Ctrl+", L"Strg+"},
    {L"Comparison", L"Vergleich"},
    {L"No recording", L"Keine Aufnahme"},
    {L"No recording chosen", L"Keine Aufnahme gewählt"},
    {L"Choose a recording in the list to see it here.",
     L"Wählen Sie in der Liste eine Aufnahme, um sie hier zu sehen."},
    {L"reading...", L"wird gelesen..."},
    {L"not read yet", L"noch nicht gelesen"},
    {L"not read", L"nicht gelesen"},
    {L"No recordings yet", L"Noch keine Aufnahmen"},
    {L"Recordings are being looked for.", L"Aufnahmen werden gesucht."},
    {L"Folder not found", L"Ordner nicht gefunden"},
    {L"This folder does not exist or cannot be read:", L"Diesen Ordner gibt es nicht, oder er ist nicht lesbar:"},
    {L"folder not found:", L"Ordner nicht gefunden:"},
    {L"folders not found:", L"Ordner nicht gefunden:"},
    {L"Cancel", L"Abbrechen"},
    {L"Reference", L"Bezug"},
    {L"against it,", L"dagegen hat"},
    {L"has peak", L"Spitze"},
    {L"recording", L"Aufnahme"},
    {L"recordings", L"Aufnahmen"},
    {L"being read", L"werden gelesen"},
    {L"cannot be shown", L"nicht darstellbar"},
    {L"marked", L"markiert"},
    {L"marks and comments cannot be stored", L"Markierungen und Kommentare lassen sich nicht speichern"},
    {L"Levels refer to a full-scale sine: 0 dBFS peak, -3.0 dBFS RMS",
     L"Pegel beziehen sich auf einen voll ausgesteuerten Sinus: 0 dBFS Spitze, -3.0 dBFS RMS"},
    // Opening.
    {L"WAV recordings (*.wav;*.wave)|*.wav;*.wave|All files (*.*)|*.*||",
     L"WAV-Aufnahmen (*.wav;*.wave)|*.wav;*.wave|Alle Dateien (*.*)|*.*||"},
    {L"Open Recordings", L"Aufnahmen öffnen"},
    {L"Open Folder", L"Ordner öffnen"},
    {L"Type the name of a folder, or choose one.", L"Geben Sie den Namen eines Ordners ein, oder wählen Sie einen."},
    {L"There is no folder of this name.", L"Einen Ordner mit diesem Namen gibt es nicht."},
    {L"Choose a folder with recordings:", L"Wählen Sie einen Ordner mit Aufnahmen:"},
    // The list.
    {L"Name", L"Name"},
    {L"Ref.", L"Bez."},
    {L"Waveform", L"Verlauf"},
    {L"Duration", L"Dauer"},
    {L"Channels", L"Kanäle"},
    {L"Rate (Hz)", L"Rate (Hz)"},
    {L"Peak (dBFS)", L"Spitze (dBFS)"},
    {L"RMS (dBFS)", L"RMS (dBFS)"},
    {L"Date", L"Datum"},
    {L"Rating", L"Bewertung"},
    {L"Comment", L"Kommentar"},
    {L"Status", L"Zustand"},
    {L"Not rated", L"Ohne"},
    {L"Good", L"Gut"},
    {L"Usable", L"Brauchbar"},
    {L"Rejected", L"Verworfen"},
    {L"No recordings. Open files or a folder.", L"Keine Aufnahmen. Öffnen Sie Dateien oder einen Ordner."},
    {L"&Details...\tAlt+Enter", L"&Einzelheiten...\tAlt+Enter"},
    {L"Set as &reference\tCtrl+R", L"Als &Bezug setzen\tStrg+R"},
    {L"In a &window of its own\tCtrl+N", L"In eigenem &Fenster\tStrg+N"},
    {L"Edit &comment\tF2", L"K&ommentar bearbeiten\tF2"},
    {L"Ra&te...\tF4", L"Be&werten...\tF4"},
    {L"Read &again\tCtrl+F5", L"Er&neut lesen\tStrg+F5"},
    {L"&Mark all\tCtrl+A", L"Alle &markieren\tStrg+A"},
    {L"Mark &none\tCtrl+Shift+A", L"&Keine markieren\tStrg+Umschalt+A"},
    {L"Re&load everything\tF5", L"Alles neu &laden\tF5"},
    // A recording.
    {L"Cannot be shown", L"Nicht darstellbar"},
    {L"This file is damaged", L"Diese Datei ist beschädigt"},
    {L"-bit float", L" Bit Gleitkomma"},
    {L"-bit PCM", L" Bit PCM"},
    {L"-bit", L" Bit"},
    {L"channel", L"Kanal"},
    {L"channels", L"Kanäle"},
    {L"are shown", L"sind zu sehen"},
    {L"the first", L"die ersten"},
    {L"Left", L"Links"},
    {L"Right", L"Rechts"},
    {L"cut off, should be", L"abgeschnitten, Soll"},
    {L"has invalid samples", L"hat ungültige Werte"},
    {L"OK", L"In Ordnung"},
    {L"cannot be opened", L"lässt sich nicht öffnen"},
    {L"not a WAV file", L"keine WAV-Datei"},
    {L"big-endian WAV (RIFX)", L"WAV mit hohem Byte zuerst (RIFX)"},
    {L"64-bit WAV (RF64)", L"64-Bit-WAV (RF64)"},
    {L"cut off before the first sample", L"vor dem ersten Wert abgeschnitten"},
    {L"damaged header", L"beschädigter Kopf"},
    {L"empty, no samples", L"leer, keine Werte"},
    {L"unknown format (%u-bit %ls)", L"unbekanntes Format (%u Bit %ls)"},
    {L"PCM", L"PCM"},
    {L"float", L"Gleitkomma"},
    {L"unknown format (tag 0x%04X)", L"unbekanntes Format (Kennung 0x%04X)"},
    {L"The spectrogram is being computed.", L"Das Spektrogramm wird berechnet."},
    {L"the loudest of", L"der lauteste von"},
    // Its details.
    {L"Recording Details", L"Einzelheiten der Aufnahme"},
    {L"File", L"Datei"},
    {L"Folder", L"Ordner"},
    {L"Size", L"Größe"},
    {L"byte", L"Byte"},
    {L"bytes", L"Bytes"},
    {L"Format", L"Format"},
    {L"Sample rate", L"Abtastrate"},
    {L"sample", L"Wert"},
    {L"samples", L"Werte"},
    {L"Peak level", L"Spitzenpegel"},
    {L"RMS level", L"Effektivpegel"},
    {L"&Previous recording\tCtrl+Page Up", L"&Vorige Aufnahme\tStrg+Bild auf"},
    {L"&Next recording\tCtrl+Page Down", L"&Nächste Aufnahme\tStrg+Bild ab"},
    {L"Show in the &list", L"In der &Liste zeigen"},
    {L"Set as &reference", L"Als &Bezug setzen"},
    // The displays.
    {L"Position", L"Position"},
    {L"Level (dBFS)", L"Pegel (dBFS)"},
    {L"S&pectrogram colours:", L"S&pektrogrammfarben:"},
    {L"Print Preview", L"Druckvorschau"},
    {L"Fit waveform to its peak", L"Kurve an ihre Spitze anpassen"},
    {L"Amplification", L"Verstärkung"},
    {L"Amplification of the waveform", L"Verstärkung der Kurve"},
    // The export of the list.
    {L"Export List", L"Liste exportieren"},
    {L"Text with tabs (*.txt)|*.txt|Web page (*.html)|*.html|All files (*.*)|*.*||",
     L"Text mit Tabulatoren (*.txt)|*.txt|Webseite (*.html)|*.html|Alle Dateien (*.*)|*.*||"},
    {L"All", L"Alle"},
    {L"The selected ones", L"Die gewählten"},
    {L"The marked ones", L"Die markierten"},
    {L"Replace this file?", L"Diese Datei ersetzen?"},
    {L"Type the whole path of the file, or choose one.",
     L"Geben Sie den ganzen Pfad der Datei ein, oder wählen Sie eine."},
    {L"This file could not be written:", L"Diese Datei ließ sich nicht schreiben:"},
    // Settings.
    {L"Settings", L"Einstellungen"},
    {L"The opacity must be between 20 and 100 percent.", L"Die Deckkraft muss zwischen 20 und 100 Prozent liegen."},
    {L"Choose a folder that is opened at the start:", L"Wählen Sie einen Ordner, der beim Start geöffnet wird:"},
    {L"Choose the folder for the settings file:", L"Wählen Sie den Ordner für die Einstellungsdatei:"},
    {L"Choose the folder that has the settings file:", L"Wählen Sie den Ordner mit der Einstellungsdatei:"},
    {L"The settings could not be written to this file:",
     L"Die Einstellungen ließen sich nicht in diese Datei schreiben:"},
    {L"The settings are in this file now:", L"Die Einstellungen stehen jetzt in dieser Datei:"},
    {L"This folder has no settings file:", L"In diesem Ordner ist keine Einstellungsdatei:"},
    {L"Replace all settings by those in this file?", L"Alle Einstellungen durch die in dieser Datei ersetzen?"},
    {L"The settings are those of the file now.", L"Es gelten jetzt die Einstellungen der Datei."},
    {L"Only a part of the settings could be taken from this file:",
     L"Nur ein Teil der Einstellungen ließ sich aus dieser Datei übernehmen:"},
    {L"This is no settings file, or it cannot be read:",
     L"Dies ist keine Einstellungsdatei, oder sie ist nicht lesbar:"},
    {L"The settings could not be stored.", L"Die Einstellungen ließen sich nicht speichern."},
    // Panes.
    {L"Recordings", L"Aufnahmen"},
};

/// The entries in the order of their English texts.
std::vector<Entry> const & Catalogue()
{
    static std::vector<Entry> const catalogue = [] {
        std::vector<Entry> entries(std::begin(all_entries), std::end(all_entries));
        std::ranges::sort(entries, {}, [](Entry const & entry) { return std::wstring_view(entry.english); });
        return entries;
    }();
    return catalogue;
}

std::atomic<Language> s_language = Language::English;

} // namespace

Language LanguageOf(unsigned short languageId)
{
    return (languageId & primary_language_mask) == german_language ? Language::German : Language::English;
}

void SetLanguage(Language language)
{
    s_language = language;
}

wchar_t const * Text(wchar_t const * english)
{
    if (s_language == Language::English)
    {
        return english;
    }
    auto const & entries = Catalogue();
    std::wstring_view const wanted(english);
    auto const found = std::ranges::lower_bound(entries, wanted, {},
                                                [](Entry const & entry) { return std::wstring_view(entry.english); });
    return found != entries.end() && found->english == wanted ? found->german : english;
}

} // namespace workbench
