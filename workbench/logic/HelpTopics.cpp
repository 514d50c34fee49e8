#include "logic/HelpTopics.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace workbench
{

namespace
{

/// A page in all languages, by their numbers.
using Page = HelpPage[language_count];

constexpr Page pages[] = {
    {{L"The workbench",
      L"The workbench shows WAV recordings: their levels in a list, and the chosen one as a waveform and a "
      L"spectrogram.\n"
      L"Open a folder or files from the File menu, or drop them on the window. Recordings are read in the background; "
      L"Cancel at the lower right ends that, and what has been read stays.\n"
      L"The window consists of panes: recordings, waveform, spectrogram, measures and folders. Drag a pane by its "
      L"title "
      L"to another side, into tabs or out of the window. F6 goes from one to the next, the Window menu shows and hides "
      L"them, and Reset layout puts them back. The lines between panes are dragged to change their sizes; Ctrl and Alt "
      L"with an arrow key change that of the pane with the focus.\n"
      L"Marks, ratings, comments, order, the part shown and the layout are kept by themselves and are there again at "
      L"the next start.\n"},
     {L"Die Workbench",
      L"Die Workbench zeigt WAV-Aufnahmen: ihre Pegel in einer Liste, die gewählte als Kurve und als Spektrogramm.\n"
      L"Öffnen Sie einen Ordner oder Dateien im Menü Datei, oder legen Sie sie mit der Maus im Fenster ab. Aufnahmen "
      L"werden im Hintergrund gelesen; Abbruch rechts unten beendet das, was gelesen ist, bleibt.\n"
      L"Das Fenster besteht aus Bereichen: Aufnahmen, Verlauf, Spektrogramm, Messwerte und Ordner. Ziehen Sie einen "
      L"Bereich an seinem Titel an eine andere Seite, in Reiter oder aus dem Fenster heraus. F6 geht von einem zum "
      L"nächsten, das Menü Fenster zeigt und verbirgt sie, Anordnung zurücksetzen stellt sie zurück. Ihre "
      L"Größe ändert man, indem man die Linien zwischen ihnen zieht, oder für den Bereich mit dem Fokus mit Strg, Alt "
      L"und einer Pfeiltaste.\n"
      L"Markierungen, Bewertungen, Kommentare, Reihenfolge, der gezeigte Ausschnitt und die Anordnung werden von "
      L"selbst "
      L"behalten und sind beim nächsten Start wieder da.\n"},
     {L"El programa",
      L"El programa muestra grabaciones WAV: sus niveles en una lista, y la elegida como forma de onda y "
      L"espectrograma.\n"
      L"Abra una carpeta o archivos desde el menú Archivo, o suéltelos en la ventana. Las grabaciones se leen en "
      L"segundo "
      L"plano; Cancelar, abajo a la derecha, lo interrumpe, y lo leído se conserva.\n"
      L"La ventana consta de paneles: grabaciones, forma de onda, espectrograma, medidas y carpetas. Arrastre un panel "
      L"por su título a otro lado, a una pestaña o fuera de la ventana. F6 pasa de uno a otro, el menú Ventana los "
      L"muestra y oculta, y Restablecer disposición los devuelve a su sitio. "
      L"Su tamaño se cambia arrastrando las líneas entre ellos o, el del panel con el foco, con Ctrl, Alt y una "
      L"flecha.\n"
      L"Las marcas, valoraciones, comentarios, el orden, la parte mostrada y la disposición se conservan solos y "
      L"vuelven "
      L"en el siguiente inicio.\n"}},
    {{L"The list of recordings",
      L"Each line is a recording. A click on a title sorts by that column, a second one in the other direction; "
      L"lines can be dragged to other places. Widths are changed at the titles' edges, "
      L"columns are chosen and sorted by in the View menu, and ordered in the settings.\n"
      L"The tick marks a recording, the circle makes it the reference to which the status line compares the chosen "
      L"one. "
      L"Stars are set by a click, the rating and the comment are edited in place. Several lines are selected with "
      L"Shift "
      L"and Ctrl and act together. Undo takes back marks, ratings, comments and order.\n"
      L"A symbol in the Status column tells whether a file is undamaged, damaged or not readable; its text says "
      L"why.\n"},
     {L"Die Liste der Aufnahmen",
      L"Jede Zeile ist eine Aufnahme. Ein Klick auf einen Titel sortiert nach dieser Spalte, ein zweiter anders herum; "
      L"Zeilen lassen sich an andere Plätze ziehen. Breiten ändert man an den Rändern "
      L"der Titel, Spalten wählt man im Menü Ansicht, das auch nach ihnen sortiert; ihre Reihenfolge steht in den "
      L"Einstellungen.\n"
      L"Das Häkchen markiert eine Aufnahme, der Kreis macht sie zum Bezug, mit dem die Statuszeile die gewählte "
      L"vergleicht. Sterne setzt ein Klick, Bewertung und Kommentar werden an ihrer Stelle bearbeitet. Mehrere Zeilen "
      L"wählt man mit Umschalt und Strg, sie handeln gemeinsam. Rückgängig nimmt Markierungen, Bewertungen, Kommentare "
      L"und Reihenfolge zurück.\n"
      L"Ein Zeichen in der Spalte Zustand sagt, ob eine Datei unbeschädigt, beschädigt oder nicht lesbar ist; der Text "
      L"nennt den Grund.\n"},
     {L"La lista de grabaciones",
      L"Cada línea es una grabación. Un clic en un título ordena por esa columna, otro lo hace en sentido contrario; "
      L"las líneas se pueden arrastrar a otros sitios. Los anchos se cambian en los bordes de los "
      L"títulos y las columnas se eligen en el menú Ver, que también ordena por ellas; su orden está en la "
      L"configuración.\n"
      L"La casilla marca una grabación, el círculo la convierte en la referencia con la que la línea de estado compara "
      L"la elegida. Las estrellas se ponen con un clic; la valoración y el comentario se editan en su sitio. Con Mayús "
      L"y Ctrl se seleccionan varias líneas, que actúan juntas. Deshacer retira marcas, valoraciones, comentarios y "
      L"orden.\n"
      L"Un símbolo en la columna Estado indica si un archivo está sin daños, dañado o no es legible; su texto dice por "
      L"qué.\n"}},
    {{L"Finding", L"Find shows a strip above the list: what is typed there narrows the list at once to recordings "
                  L"whose name, folder "
                  L"or comment has all the words. The choice beside it keeps marked, undamaged, damaged or unreadable "
                  L"ones, or those "
                  L"of a rating. Escape clears and closes the strip.\n"
                  L"Letters typed in the list go to the next name that begins so.\n"},
     {L"Suchen",
      L"Suchen zeigt einen Streifen über der Liste: Was dort eingegeben wird, beschränkt die Liste sofort auf "
      L"Aufnahmen, "
      L"deren Name, Ordner oder Kommentar alle Wörter enthält. Die Auswahl daneben lässt markierte, unbeschädigte, "
      L"beschädigte oder nicht lesbare stehen, oder die einer Bewertung. Escape leert und schließt den Streifen.\n"
      L"Buchstaben, die in der Liste getippt werden, gehen zum nächsten Namen, der so beginnt.\n"},
     {L"Buscar",
      L"Buscar muestra una franja sobre la lista: lo que se escribe allí la reduce al instante a las grabaciones cuyo "
      L"nombre, carpeta o comentario contiene todas las palabras. La opción contigua deja las marcadas, sin daños, "
      L"dañadas o no legibles, o las de una valoración. Escape vacía y cierra la franja.\n"
      L"Las letras escritas en la lista llevan al siguiente nombre que empieza así.\n"}},
    {{L"Waveform",
      L"The waveform shows the amplitude over time, each channel in a lane. The scale at its left is in dBFS; parts "
      L"beyond full scale are painted in the clipping colour.\n"
      L"A click sets the cursor, dragging selects a stretch. The wheel zooms at the pointer, with Shift it scrolls, "
      L"with "
      L"Ctrl it amplifies. The slider at the right amplifies what is shown and played; the level scale follows.\n"
      L"The strip below shows the whole recording with the part that is in sight. Waveform and spectrogram always show "
      L"the same part.\n"},
     {L"Verlauf",
      L"Die Kurve zeigt die Amplitude über der Zeit, jeden Kanal in einer Bahn. Die Skala links ist in dBFS; Stellen "
      L"über der Vollaussteuerung sind in der Farbe für Übersteuerung gemalt.\n"
      L"Ein Klick setzt den Cursor, Ziehen wählt eine Strecke aus. Das Rad zoomt an der Stelle des Zeigers, mit "
      L"Umschalt blättert es, mit Strg verstärkt es. Der Schieber rechts verstärkt, was gezeigt und gespielt wird; die "
      L"Pegelskala geht mit.\n"
      L"Der Streifen darunter zeigt die ganze Aufnahme mit dem Teil, der zu sehen ist. Kurve und Spektrogramm zeigen "
      L"stets denselben Teil.\n"},
     {L"Forma de onda",
      L"La forma de onda muestra la amplitud en el tiempo, cada canal en una pista. La escala de la izquierda está en "
      L"dBFS; lo que excede el fondo de escala se pinta con el color de saturación.\n"
      L"Un clic coloca el cursor, arrastrar selecciona un tramo. La rueda amplía en el puntero, con Mayús desplaza, "
      L"con "
      L"Ctrl amplifica. El deslizador de la derecha amplifica lo que se ve y se oye; la escala de niveles lo sigue.\n"
      L"La franja inferior muestra toda la grabación con la parte visible. La forma de onda y el espectrograma "
      L"muestran "
      L"siempre la misma parte.\n"}},
    {{L"Spectrogram",
      L"The spectrogram shows time from left to right, frequency from below, and the level by colour, as the scale at "
      L"its right tells in dBFS. Of several channels it shows the loudest at each point.\n"
      L"It is made of Fourier transforms of windowed pieces. A longer window tells frequencies apart that lie closer "
      L"together, a shorter one moments: the steps in frequency are the sample rate divided by the window's length. "
      L"Window, overlap and a linear or logarithmic axis are in the settings.\n"
      L"Mouse and keys do here what they do in the waveform; the cursor has a frequency as well.\n"},
     {L"Spektrogramm",
      L"Das Spektrogramm zeigt die Zeit von links nach rechts, die Frequenz von unten nach oben und den Pegel als "
      L"Farbe, "
      L"wie die Skala rechts in dBFS sagt. Von mehreren Kanälen zeigt es an jeder Stelle den lautesten.\n"
      L"Es entsteht aus Fouriertransformationen gefensterter Stücke. Ein längeres Fenster trennt näher beieinander "
      L"liegende Frequenzen, ein kürzeres Zeitpunkte: Die Schritte der Frequenz sind die Abtastrate geteilt durch die "
      L"Länge des Fensters. Fenster, Überlappung und lineare oder logarithmische Achse stehen in den Einstellungen.\n"
      L"Maus und Tasten tun hier dasselbe wie in der Kurve; der Cursor hat auch eine Frequenz.\n"},
     {L"Espectrograma",
      L"El espectrograma muestra el tiempo de izquierda a derecha, la frecuencia de abajo arriba y el nivel por el "
      L"color, según la escala de la derecha en dBFS. De varios canales muestra en cada punto el más intenso.\n"
      L"Se compone de transformadas de Fourier de trozos con ventana. Una ventana más larga separa frecuencias más "
      L"próximas, una más corta separa instantes: los pasos de frecuencia son el muestreo dividido por la longitud de "
      L"la "
      L"ventana. Ventana, solapamiento y eje lineal o logarítmico están en la configuración.\n"
      L"El ratón y las teclas hacen aquí lo mismo que en la forma de onda; el cursor tiene además una frecuencia.\n"}},
    {{L"Displays",
      L"The pane with the measures shows the cursor's position in minutes, seconds and thousandths, and "
      L"the level there: "
      L"the greatest amplitude of the ten milliseconds around it in all channels, in dBFS. The analysis frames measure "
      L"twice as long a piece, so that their peaks can be greater. Beside them are a clock and "
      L"the choice of the "
      L"spectrogram's colours.\n"},
     {L"Anzeigen",
      L"Der Bereich mit den Messwerten zeigt die Stelle des Cursors in Minuten, Sekunden und Tausendsteln und den "
      L"Pegel "
      L"dort: die größte Amplitude der zehn Millisekunden ringsum in allen Kanälen, in dBFS. Die Analyseabschnitte "
      L"messen "
      L"ein doppelt so langes Stück, ihre Spitzen können also größer sein. Daneben stehen eine Uhr und die Wahl der "
      L"Farben des Spektrogramms.\n"},
     {L"Indicadores",
      L"El panel de medidas muestra la posición del cursor en minutos, segundos y milésimas, y el nivel en ese punto: "
      L"la "
      L"mayor amplitud de los diez milisegundos en torno a él en todos los canales, en dBFS. Los tramos de análisis "
      L"miden un trozo el doble de largo, por lo que sus picos pueden ser mayores. Al lado hay un reloj y la elección "
      L"de los "
      L"colores del espectrograma.\n"}},
    {{L"Analysis frames",
      L"The pane of the analysis frames has a row each millisecond of the chosen recording. Each is measured in a "
      L"piece "
      L"of about 20 ms around its time, over all channels: peak, effective level, how far the former lies above the "
      L"latter, the strongest frequency and the centroid of the spectrum. The display of the measures looks at 10 ms "
      L"only, and the list at the whole recording, so that their numbers differ.\n"
      L"A row that is chosen moves the cursor of the plots; what is selected there stays. The cursor chooses its row.\n"
      L"The filter shows rows by a column: > -20, <= 3 or 100..200, or a part of the number. Where a number is wrong "
      L"it "
      L"says so and shows all rows. The menu of the table sorts by a column, hides it and moves it.\n"},
     {L"Analyseabschnitte",
      L"Der Bereich der Analyseabschnitte hat eine Zeile je Millisekunde der gewählten Aufnahme. Jede ist in einem "
      L"Stück von etwa 20 ms um ihre Zeit gemessen, über alle Kanäle: Spitze, Effektivpegel, wie weit erstere über "
      L"letzterem liegt, die stärkste Frequenz und der Schwerpunkt des Spektrums. Die Anzeige der Messwerte betrachtet "
      L"nur 10 ms, die Liste die ganze Aufnahme, daher unterscheiden sich ihre Zahlen.\n"
      L"Eine gewählte Zeile bewegt den Cursor der Bilder; was dort ausgewählt ist, bleibt. Der Cursor wählt seine "
      L"Zeile.\n"
      L"Der Filter zeigt Zeilen nach einer Spalte: > -20, <= 3 oder 100..200, oder einen Teil der Zahl. Wo eine Zahl "
      L"falsch ist, sagt er es und zeigt alle Zeilen. Das Menü der Tabelle sortiert nach einer Spalte, verbirgt und "
      L"verschiebt sie.\n"},
     {L"Tramos de análisis",
      L"El panel de los tramos de análisis tiene una fila por milisegundo de la grabación elegida. Cada una se mide en "
      L"un trozo de unos 20 ms en torno a su tiempo, en todos los canales: pico, nivel eficaz, cuánto está el primero "
      L"por encima del segundo, la frecuencia dominante y el centroide del espectro. El indicador de las medidas mira "
      L"solo 10 ms, y la lista toda la grabación; por eso sus números difieren.\n"
      L"Una fila elegida mueve el cursor de los gráficos; lo seleccionado allí se conserva. El cursor elige su fila.\n"
      L"El filtro muestra filas según una columna: > -20, <= 3 o 100..200, o una parte del número. Si un número está "
      L"mal, lo dice y muestra todas las filas. El menú de la tabla ordena por una columna, la oculta y la mueve.\n"}},
    {{L"Folders", L"The tree shows folders and their recordings. Choosing a recording shows it in the list; choosing "
                  L"one in another "
                  L"folder opens that folder. Enter opens the folder on which the keys have stopped. The tree follows "
                  L"what is chosen "
                  L"in the list.\n"},
     {L"Ordner",
      L"Der Baum zeigt Ordner und ihre Aufnahmen. Eine gewählte Aufnahme wird in der Liste gezeigt; liegt sie in einem "
      L"anderen Ordner, wird dieser geöffnet. Die Eingabetaste öffnet den Ordner, auf dem die Tasten stehen. Der Baum "
      L"folgt dem, was in der Liste gewählt wird.\n"},
     {L"Carpetas",
      L"El árbol muestra carpetas y sus grabaciones. Al elegir una grabación se muestra en la lista; si está en otra "
      L"carpeta, se abre esa carpeta. Entrar abre la carpeta en la que se está con las teclas. El árbol sigue lo que "
      L"se "
      L"elige en la lista.\n"}},
    {{L"Windows of their own",
      L"A recording can have a window of its own beside the panes, and four can stand in a grid to be compared: the "
      L"marked ones, or the chosen one and those below it. They stay when other recordings are listed, and open again "
      L"at "
      L"the next start.\n"},
     {L"Eigene Fenster",
      L"Eine Aufnahme kann neben den Bereichen ein eigenes Fenster haben, und vier können zum Vergleich in einem "
      L"Raster "
      L"stehen: die markierten, oder die gewählte und die unter ihr. Sie bleiben, wenn andere Aufnahmen in der Liste "
      L"stehen, und öffnen sich beim nächsten Start wieder.\n"},
     {L"Ventanas propias",
      L"Una grabación puede tener una ventana propia junto a los paneles, y cuatro pueden compararse en una "
      L"cuadrícula: "
      L"las marcadas, o la elegida y las siguientes. Permanecen al listar otras grabaciones y se vuelven a abrir en el "
      L"siguiente inicio.\n"}},
    {{L"Playing",
      L"Play gives out what is selected, or all from the cursor on; a line moves along in both plots. The same key "
      L"pauses and goes on. Loop plays the stretch again and again. The slider of the waveform is the gain.\n"},
     {L"Wiedergabe",
      L"Abspielen gibt wieder, was ausgewählt ist, oder alles vom Cursor an; in beiden Bildern läuft eine Linie mit. "
      L"Dieselbe Taste hält an und geht weiter. Schleife spielt die Strecke immer wieder. Der Schieber der Kurve ist "
      L"die "
      L"Verstärkung.\n"},
     {L"Reproducción",
      L"Reproducir emite lo seleccionado, o todo desde el cursor; una línea avanza en ambos gráficos. La misma tecla "
      L"pausa y continúa. Bucle repite el tramo. El deslizador de la forma de onda es la ganancia.\n"}},
    {{L"What the measures mean",
      L"x stands for the samples, full scale at 1; N is their number. Measures are of all channels unless it says "
      L"otherwise.\n"
      L"Peak (dBFS)\tThe greatest amplitude: 20 · log10(max |x|). A full-scale sine has 0.\n"
      L"RMS (dBFS)\tThe effective level: 20 · log10(sqrt(sum(x²) / N)). A full-scale sine has -3.\n"
      L"Crest (dB)\tHow far the peak lies above the effective level: peak - RMS. A sine has 3.\n"
      L"Loudness (LUFS)\tIntegrated loudness by ITU-R BS.1770: -0.691 + 10 · log10(sum(G · z)), z the mean squares of "
      L"the "
      L"channels after the K weighting, in pieces of 0.4 s. G is 1, for surround channels 1.41. Pieces below -70 LUFS, "
      L"and then those 10 LU below the mean, do not count.\n"
      L"Frequency (Hz)\tThe strongest frequency of the first channel's mean spectrum.\n"
      L"Distortion (%)\tTotal harmonic distortion of a tone in the first channel: 100 · sqrt(A2² + A3² + ...) / A1, "
      L"with "
      L"the harmonics up to the tenth below half the sample rate. A dash where no tone has more than half the power.\n"
      L"Duration\tMinutes, seconds and thousandths: samples of a channel divided by the sample rate.\n"
      L"Comparison\tThe status line tells by how many dB the chosen recording's peak and RMS lie above the "
      L"reference's.\n"},
     {L"Was die Messwerte bedeuten",
      L"x steht für die Abtastwerte mit der Vollaussteuerung bei 1, N für ihre Zahl. Wo nichts anderes steht, gelten "
      L"die "
      L"Werte für alle Kanäle.\n"
      L"Spitze (dBFS)\tDie größte Amplitude: 20 · log10(max |x|). Ein voll ausgesteuerter Sinus hat 0.\n"
      L"RMS (dBFS)\tDer Effektivpegel: 20 · log10(sqrt(sum(x²) / N)). Ein voll ausgesteuerter Sinus hat -3.\n"
      L"Scheitel (dB)\tWie weit die Spitze über dem Effektivpegel liegt: Spitze - RMS. Ein Sinus hat 3.\n"
      L"Lautheit (LUFS)\tLautheit des Ganzen nach ITU-R BS.1770: -0.691 + 10 · log10(sum(G · z)), z die mittleren "
      L"Quadrate "
      L"der Kanäle nach der Gewichtung K, in Stücken von 0.4 s. G ist 1, für Surround-Kanäle 1.41. Stücke unter "
      L"-70 LUFS, und danach die 10 LU unter dem Mittel, zählen nicht.\n"
      L"Frequenz (Hz)\tDie stärkste Frequenz im mittleren Spektrum des ersten Kanals.\n"
      L"Klirrfaktor (%)\tHarmonische Verzerrung eines Tons im ersten Kanal: 100 · sqrt(A2² + A3² + ...) / A1, mit den "
      L"Oberwellen bis zur zehnten unter der halben Abtastrate. Ein Strich, wo kein Ton mehr als die halbe Leistung "
      L"hat.\n"
      L"Dauer\tMinuten, Sekunden und Tausendstel: Werte eines Kanals geteilt durch die Abtastrate.\n"
      L"Vergleich\tDie Statuszeile sagt, um wie viele dB Spitze und RMS der gewählten Aufnahme über denen des Bezugs "
      L"liegen.\n"},
     {L"Qué significan las medidas",
      L"x son las muestras, con el fondo de escala en 1; N es su número. Si no se dice otra cosa, las medidas son de "
      L"todos "
      L"los canales.\n"
      L"Pico (dBFS)\tLa mayor amplitud: 20 · log10(max |x|). Una senoidal a fondo de escala tiene 0.\n"
      L"RMS (dBFS)\tEl nivel eficaz: 20 · log10(sqrt(sum(x²) / N)). Una senoidal a fondo de escala tiene -3.\n"
      L"Cresta (dB)\tCuánto está el pico por encima del nivel eficaz: pico - RMS. Una senoidal tiene 3.\n"
      L"Sonoridad (LUFS)\tSonoridad integrada según ITU-R BS.1770: -0.691 + 10 · log10(sum(G · z)), z los cuadrados "
      L"medios "
      L"de los canales tras la ponderación K, en trozos de 0.4 s. G es 1, para los canales envolventes 1.41. Los "
      L"trozos "
      L"bajo -70 LUFS, y después los que están 10 LU bajo la media, no cuentan.\n"
      L"Frecuencia (Hz)\tLa frecuencia dominante en el espectro medio del primer canal.\n"
      L"Distorsión (%)\tDistorsión armónica total de un tono en el primer canal: 100 · sqrt(A2² + A3² + ...) / A1, con "
      L"los "
      L"armónicos hasta el décimo bajo la mitad del muestreo. Un guion si ningún tono tiene más de la mitad de la "
      L"potencia.\n"
      L"Duración\tMinutos, segundos y milésimas: muestras de un canal divididas por el muestreo.\n"
      L"Comparación\tLa línea de estado dice cuántos dB están el pico y el RMS de la grabación elegida por encima de "
      L"los "
      L"de la referencia.\n"}},
    {{L"Taking away", L"Export list writes the lines and columns of choice as text, CSV or a table for browsers. For "
                      L"people, numbers have "
                      L"the signs of your region; in CSV files the decimal sign is always a point and values are "
                      L"separated by commas, so "
                      L"that programs of any region read them alike.\n"
                      L"Waveform and spectrogram are saved as PNG and copied as bitmap and metafile from the File and "
                      L"Edit menus. Print "
                      L"preview shows them on a page, from where they are printed.\n"},
     {L"Mitnehmen",
      L"Liste exportieren schreibt die gewünschten Zeilen und Spalten als Text, CSV oder Tabelle für Browser. Für "
      L"Menschen haben Zahlen die Zeichen Ihrer Region; in CSV-Dateien ist das Dezimalzeichen stets ein Punkt, und "
      L"Werte "
      L"sind durch Kommas getrennt, so dass Programme jeder Region sie gleich lesen.\n"
      L"Kurve und Spektrogramm werden aus den Menüs Datei und Bearbeiten als PNG gespeichert und als Bitmap und "
      L"Metafile "
      L"kopiert. Die Druckvorschau zeigt sie auf einer Seite, von dort werden sie gedruckt.\n"},
     {L"Llevarse los datos",
      L"Exportar lista escribe las líneas y columnas elegidas como texto, CSV o tabla para navegadores. Para las "
      L"personas, "
      L"los números llevan los signos de su región; en los archivos CSV el signo decimal es siempre un punto y los "
      L"valores "
      L"van separados por comas, de modo que los programas de cualquier región los leen igual.\n"
      L"La forma de onda y el espectrograma se guardan como PNG y se copian como mapa de bits y metarchivo desde los "
      L"menús "
      L"Archivo y Edición. La vista previa los muestra en una página, desde la que se imprimen.\n"}},
    {{L"Settings",
      L"The settings have the folders opened at the start, the waveform's colours, window, overlap and axis of the "
      L"spectrogram, the columns of the list, its contrast, and how dialogs behave. Apply has them count at once. They "
      L"can be "
      L"exported "
      L"to a file and imported from one. The language is chosen in the Options menu.\n"},
     {L"Einstellungen",
      L"Die Einstellungen enthalten die Ordner, die beim Start geöffnet werden, die Farben der Kurve, Fenster, "
      L"Überlappung und Achse des Spektrogramms, die Spalten der Liste, ihren Kontrast und das Verhalten der Dialoge. "
      L"Mit Übernehmen "
      L"gelten sie sofort. Sie lassen sich in eine Datei exportieren und aus einer importieren. Die Sprache wählt man "
      L"im "
      L"Menü Optionen.\n"},
     {L"Configuración",
      L"La configuración tiene las carpetas que se abren al inicio, los colores de la forma de onda, la ventana, el "
      L"solapamiento y el eje del espectrograma, las columnas de la lista, su contraste y el comportamiento de los "
      L"diálogos. Con "
      L"Aplicar "
      L"se usan al instante. Puede exportarse a un archivo e importarse de uno. El idioma se elige en el menú "
      L"Opciones.\n"}},
    {{L"Keys", L""}, {L"Tasten", L""}, {L"Teclas", L""}},
};
static_assert(std::size(pages) == static_cast<std::size_t>(help_topic_count));

/// A key of the plots, and what it does.
struct PlotKey
{
    wchar_t const * key;
    wchar_t const * action;
};

constexpr wchar_t const * plot_title[language_count] = {L"In waveform and spectrogram", L"In Kurve und Spektrogramm",
                                                        L"En forma de onda y espectrograma"};

constexpr PlotKey plot_keys[][language_count] = {
    {{L"Left, Right", L"Move the cursor"},
     {L"Links, Rechts", L"Cursor bewegen"},
     {L"Izquierda, Derecha", L"Mover el cursor"}},
    {{L"Ctrl+Left, Ctrl+Right", L"Move it by a tenth of what is shown"},
     {L"Strg+Links, Strg+Rechts", L"um ein Zehntel des Gezeigten"},
     {L"Ctrl+Izquierda, Ctrl+Derecha", L"Moverlo una décima de lo visible"}},
    {{L"Shift+arrow", L"Select"}, {L"Umschalt+Pfeil", L"Auswählen"}, {L"Mayús+flecha", L"Seleccionar"}},
    {{L"Home, End", L"To the beginning, to the end"},
     {L"Pos1, Ende", L"Zum Anfang, zum Ende"},
     {L"Inicio, Fin", L"Al principio, al final"}},
    {{L"Up, Down", L"Amplify, reduce"},
     {L"Auf, Ab", L"Verstärken, abschwächen"},
     {L"Arriba, Abajo", L"Amplificar, reducir"}},
    {{L"+, -", L"Zoom in, zoom out"}, {L"+, -", L"Vergrößern, verkleinern"}, {L"+, -", L"Acercar, alejar"}},
    {{L"*", L"Show all"}, {L"*", L"Alles zeigen"}, {L"*", L"Mostrar todo"}},
    {{L"Page Up, Page Down", L"Scroll"}, {L"Bild auf, Bild ab", L"Blättern"}, {L"Re Pág, Av Pág", L"Desplazar"}},
    {{L"Enter", L"Show what is selected"},
     {L"Eingabe", L"Ausgewähltes zeigen"},
     {L"Entrar", L"Mostrar lo seleccionado"}},
    {{L"Escape", L"Select nothing"}, {L"Escape", L"Nichts auswählen"}, {L"Escape", L"No seleccionar nada"}},
    {{L"Space", L"Play or pause"}, {L"Leertaste", L"Abspielen oder anhalten"}, {L"Espacio", L"Reproducir o pausar"}},
};

/// Whether the tables above have something in each language: what they lack is null.
consteval bool IsThereInAllLanguages()
{
    auto const hasTitle = [](HelpPage const & page) { return page.title != nullptr && page.text != nullptr; };
    auto const hasAction = [](PlotKey const & key) { return key.key != nullptr && key.action != nullptr; };
    return std::ranges::all_of(pages, [&](auto const & page) { return std::ranges::all_of(page, hasTitle); }) &&
           std::ranges::all_of(plot_title, [](wchar_t const * title) { return title != nullptr; }) &&
           std::ranges::all_of(plot_keys, [&](auto const & key) { return std::ranges::all_of(key, hasAction); });
}
static_assert(IsThereInAllLanguages(), "a language lacks a page of the help, or the keys of the plots");

/// A menu's text without the mark of its access key and without the dots of a dialog.
std::wstring Plain(std::wstring const & text)
{
    std::wstring plain;
    for (std::size_t place = 0; place < text.size(); ++place)
    {
        if (text[place] == L'&' && place + 1 < text.size())
        {
            ++place;
        }
        plain += text[place];
    }
    return plain.ends_with(L"...") ? plain.substr(0, plain.size() - 3) : plain;
}

} // namespace

HelpPage HelpPageOf(HelpTopic topic, Language language)
{
    return pages[static_cast<std::size_t>(topic)][static_cast<std::size_t>(language)];
}

std::wstring KeysPage(std::vector<MenuTexts> const & menus, Language language)
{
    std::wstring page;
    for (MenuTexts const & menu : menus)
    {
        std::wstring lines;
        for (std::wstring const & item : menu.items)
        {
            if (std::size_t const tab = item.find(L'\t'); tab != std::wstring::npos)
            {
                lines += item.substr(tab + 1) + L'\t' + Plain(item.substr(0, tab)) + L'\n';
            }
        }
        if (!lines.empty())
        {
            page += Plain(menu.title) + L'\n' + lines + L'\n';
        }
    }
    page += std::wstring(plot_title[static_cast<std::size_t>(language)]) + L'\n';
    for (auto const & key : plot_keys)
    {
        auto const & [name, action] = key[static_cast<std::size_t>(language)];
        page += std::wstring(name) + L'\t' + action + L'\n';
    }
    return page;
}

} // namespace workbench
