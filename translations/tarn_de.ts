<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>tarn</name>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Internal error</source>
        <translation>Interner Fehler</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Invalid procedure call</source>
        <translation>Ungültiger Aufruf</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Run-time error &apos;%1&apos;:</source>
        <translation>Laufzeitfehler &apos;%1&apos;:</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des Bereichs</translation>
    </message>
    <message>
        <location filename="../src/engine/CleanUp.cpp"/>
        <source>The layout failed its own check and was discarded.</source>
        <translation>Die Anordnung hat ihre eigene Prüfung nicht bestanden und wurde verworfen.</translation>
    </message>
    <message>
        <location filename="../src/engine/PreparePieces.cpp"/>
        <source>There are more than %1 pieces: estimate the rooms in two projects.</source>
        <translation>Es sind mehr als %1 Stücke: Berechnen Sie die Räume in zwei Projekten.</translation>
    </message>
    <message>
        <location filename="../src/engine/ResultLength.cpp"/>
        <source>The fills need more than %1 inches of roll: estimate the rooms in two projects.</source>
        <translation>Die Füllstücke brauchen mehr als %1 Zoll Rolle: Berechnen Sie die Räume in zwei Projekten.</translation>
    </message>
    <message>
        <location filename="../src/engine/Search.cpp"/>
        <source>The layout is not as long as its trial and was discarded.</source>
        <translation>Die Anordnung ist nicht so lang wie ihr Versuch und wurde verworfen.</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>CROSSLAY</source>
        <translation>QUER VERLEGT</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Carpet-%1  Width=%2</source>
        <translation>Teppich-%1  Breite=%2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>DOWNLAY</source>
        <translation>LÄNGS VERLEGT</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Fills end at:%1</source>
        <translation>Füllstücke enden bei: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Match Pattern: %1</source>
        <translation>Rapport: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Tile-%1: %2 SQ. FT.  Tile Base: %3 FEET</source>
        <translation>Fliese-%1: %2 ft²  Sockelleiste: %3 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Tile-%1: %2 SQ. Meters.  Tile Base: %3 CM</source>
        <translation>Fliese-%1: %2 m²  Sockelleiste: %3 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total BASE: %1 CM</source>
        <translation>Sockelleiste gesamt: %1 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total BASE: %1 FEET</source>
        <translation>Sockelleiste gesamt: %1 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Cuts:%1   Total Cut-Len:%2</source>
        <translation>Bahnen: %1   Länge der Bahnen: %2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Fills:%1   Total Fill-Len:%2</source>
        <translation>Füllstücke: %1   Länge der Füllstücke: %2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Length:%1</source>
        <translation>Gesamtlänge: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Length: %1</source>
        <translation>Gesamtlänge mit Rapport: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Size: %1 SQ. FT.   %2 SQ. Yards</source>
        <translation>Gesamtfläche mit Rapport: %1 ft²   %2 yd²</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Size: %1 SQ. Meters   </source>
        <translation>Gesamtfläche mit Rapport: %1 m²   </translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. FT.:%1</source>
        <translation>Gesamt ft²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. Meters:%1</source>
        <translation>Gesamt m²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. Yards:%1</source>
        <translation>Gesamt yd²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.cpp"/>
        <source>= %1 CM</source>
        <translation>= %1 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.h"/>
        <source>The carpet width is not correct.</source>
        <translation>Die Rollenbreite ist nicht richtig.</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.h"/>
        <source>The match pattern is not correct.</source>
        <translation>Der Rapport ist nicht richtig.</translation>
    </message>
    <message>
        <location filename="../src/estimate/FillLabels.cpp"/>
        <source>Cut%1</source>
        <translation>Bahn%1</translation>
    </message>
    <message>
        <location filename="../src/estimate/ImproveEstimate.cpp"/>
        <source>%1 shorter</source>
        <translation>%1 kürzer</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>%1 with parts of at least %2</source>
        <translation>%1 mit Teilen von mindestens %2</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>%n join fewer</source>
        <comment>%n joins fewer</comment>
        <translation>
            <numerusform>%n Naht weniger</numerusform>
            <numerusform>%n Nähte weniger</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>at most %1 above the least possible</source>
        <translation>höchstens %1 länger als kürzestmöglich</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>fills %1 shorter</source>
        <translation>Füllstücke %1 kürzer</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>fills less than 0.1% shorter</source>
        <translation>Füllstücke weniger als 0.1% kürzer</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>larger free end</source>
        <translation>größeres freies Ende</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>none whose parts keep the minimum cut is as short</source>
        <translation>keine, deren Teile die kürzeste Schnittlänge einhalten, ist so kurz</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>the least possible</source>
        <translation>kürzer geht es nicht</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <location filename="../src/order/CutLines.cpp"/>
        <location filename="../src/project/OrderRequest.cpp"/>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
    <message>
        <location filename="../src/estimate/LayoutDrawing.cpp"/>
        <source>NO FILLS TO DISPLAY</source>
        <translation>KEINE FÜLLSTÜCKE</translation>
    </message>
    <message>
        <location filename="../src/estimate/LayoutDrawing.cpp"/>
        <source>The fills are shorter than 1 inch: check the sizes of this carpet&apos;s rooms.</source>
        <translation>Die Füllstücke sind kürzer als 1 Zoll: Prüfen Sie die Maße der Räume mit diesem Teppichboden.</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>%1 inch</source>
        <translation>%1 Zoll</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>%1 inches</source>
        <translation>%1 Zoll</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>1/2FT</source>
        <translation>1/2 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>15 cm</source>
        <translation>15 cm</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>1FT 6&quot;</source>
        <translation>1 FUSS 6&quot;</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>3 FT</source>
        <translation>3 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>46 cm</source>
        <translation>46 cm</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>91 cm</source>
        <translation>91 cm</translation>
    </message>
    <message>
        <location filename="../src/estimate/PatternRepeat.cpp"/>
        <source>The match pattern&apos;s %1 is too large: a repeat is at most %2.</source>
        <translation>Der Rapport %1 ist zu groß: Er darf höchstens %2 sein.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; is not readable: write it as 12ft, 13.5ft, 12ft6in, 150in or 366cm.</source>
        <translation>Die Rollenbreite „%1“ ist nicht lesbar: Schreiben Sie sie wie 12ft, 13.5ft, 12ft6in, 150in oder 366cm.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; is too large.</source>
        <translation>Die Rollenbreite „%1“ ist zu groß.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; must be more than 0.</source>
        <translation>Die Rollenbreite „%1“ muss größer als 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 12 FT.</source>
        <translation>ROLLENBREITE 12 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 13.5 FT.</source>
        <translation>ROLLENBREITE 13.5 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 15 FT.</source>
        <translation>ROLLENBREITE 15 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 183 CMS</source>
        <translation>ROLLENBREITE 183 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 366 CMS</source>
        <translation>ROLLENBREITE 366 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 411 CMS</source>
        <translation>ROLLENBREITE 411 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 457 CMS</source>
        <translation>ROLLENBREITE 457 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 6 FT.</source>
        <translation>ROLLENBREITE 6 FUSS</translation>
    </message>
    <message>
        <location filename="../src/estimate/RoomCuts.cpp"/>
        <source>There are more than %1 cuts: choose a wider roll or estimate the rooms in two projects.</source>
        <translation>Es sind mehr als %1 Bahnen: Wählen Sie eine breitere Rolle oder berechnen Sie die Räume in zwei Projekten.</translation>
    </message>
    <message>
        <location filename="../src/files/Descriptor.cpp"/>
        <source>the disk is full. Free some space and try again</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <location filename="../src/files/FileModes.cpp"/>
        <source>The file cannot be made</source>
        <translation>Die Datei kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/files/FileModes.cpp"/>
        <source>The folder cannot be made</source>
        <translation>Der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>a PDF document</source>
        <translation>ein PDF-Dokument</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an Excel workbook (XLSX)</source>
        <translation>eine Excel-Arbeitsmappe (XLSX)</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an OpenDocument spreadsheet (ODS)</source>
        <translation>eine OpenDocument-Tabelle (ODS)</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an archive (ZIP), as spreadsheets such as XLSX and ODS are</source>
        <translation>ein Archiv (ZIP), wie es Tabellen im Format XLSX oder ODS sind</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an older Excel workbook (XLS) or another Office file</source>
        <translation>eine ältere Excel-Arbeitsmappe (XLS) oder eine andere Office-Datei</translation>
    </message>
    <message>
        <location filename="../src/files/Language.cpp"/>
        <source>There is no language &quot;%1&quot;. Choose one of %2.</source>
        <translation>Es gibt keine Sprache „%1“. Wählen Sie eine von %2.</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut</source>
        <translation>Stück</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>In the pattern</source>
        <translation>Im Rapport</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Room</source>
        <translation>Raum</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Size</source>
        <translation>Maß</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Which</source>
        <translation>Welches</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>%1. The new file may be there all the same</source>
        <translation>%1. Die neue Datei kann trotzdem da sein</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 is a database and stays as it is. Name another file for the output.</source>
        <translation>Die Datei %1 ist eine Datenbank und bleibt, wie sie ist. Nennen Sie eine andere Datei für die Ausgabe.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 is a link, which leads to %2, and stays as it is. Name another file for the output.</source>
        <translation>Die Datei %1 ist eine Verknüpfung nach %2 und bleibt, wie sie ist. Nennen Sie eine andere Datei für die Ausgabe.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The folder %1 cannot be stored: %2.</source>
        <translation>Der Ordner %1 kann nicht auf den Datenträger geschrieben werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>it is read-only</source>
        <translation>Sie ist schreibgeschützt</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>nothing reads from it</source>
        <translation>Niemand liest daraus</translation>
    </message>
    <message>
        <location filename="../src/files/RollDxf.cpp"/>
        <source>There is no roll to draw: every roll and lay is refused.</source>
        <translation>Es gibt keine Rolle zu zeichnen: Jede Rolle und Verlegung ist abgelehnt.</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 appears twice</source>
        <translation>%1 kommt zweimal vor</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a comma: write %2, or %3</source>
        <translation>%1 hat ein Komma: Schreiben Sie %2 oder %3</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a decimal comma: write %2</source>
        <translation>%1 hat ein Dezimalkomma: Schreiben Sie %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a decimal comma: write %2 below a heading with its unit, such as %3</source>
        <translation>%1 hat ein Dezimalkomma: Schreiben Sie %2 unter einer Überschrift mit der Einheit, wie %3</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a quote that is never closed</source>
        <translation>%1 hat ein Anführungszeichen, das nie geschlossen wird</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a unit in which no size is read; give the sizes in ft, in, m or cm</source>
        <translation>%1 hat eine Einheit, in der kein Maß gelesen wird; geben Sie die Maße in ft, in, m oder cm an</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has more than %2 characters</source>
        <translation>%1 hat mehr als %2 Zeichen</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has text behind its closing quote</source>
        <translation>%1 hat Text hinter dem schließenden Anführungszeichen</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 holds U+FFFE or U+FFFF, which are no characters; leave them out</source>
        <translation>%1 enthält U+FFFE oder U+FFFF, die keine Zeichen sind; lassen Sie sie weg</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 holds a line break or another control character; write it in one line</source>
        <translation>%1 enthält einen Zeilenumbruch oder ein anderes Steuerzeichen; schreiben Sie es in eine Zeile</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is in feet or inches, and the rooms are read in metric; read them without metric</source>
        <translation>%1 ist in Fuß oder Zoll, und die Räume werden metrisch gelesen; lesen Sie sie nicht metrisch</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is in metric, and the rooms are read in feet and inches; read them with metric</source>
        <translation>%1 ist metrisch, und die Räume werden in Fuß und Zoll gelesen; lesen Sie sie metrisch</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is kept as %2</source>
        <translation>%1 wird als %2 übernommen</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is negative</source>
        <translation>%1 ist negativ</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a covering: %2 to %3, %4 to %5, or short as %6 or %7</source>
        <translation>%1 ist kein Belag: %2 bis %3, %4 bis %5, oder kurz wie %6 oder %7</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size in whole centimetres</source>
        <translation>%1 ist kein Maß in ganzen Zentimetern</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size in whole inches, or in feet and inches such as 12&apos;6&quot;</source>
        <translation>%1 ist kein Maß in ganzen Zoll oder in Fuß und Zoll wie 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size such as 12.5 or 12&apos;6&quot;</source>
        <translation>%1 ist kein Maß wie 12.5 oder 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size such as 3.45 or 3.45m</source>
        <translation>%1 ist kein Maß wie 3.45 oder 3.45m</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a wall base: L or W with 1 or 2, such as %2</source>
        <translation>%1 ist kein Sockel: L oder W mit 1 oder 2, wie %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not valid UTF-8; save it as UTF-8 (&quot;CSV UTF-8&quot; in a spreadsheet)</source>
        <translation>%1 ist kein gültiges UTF-8; speichern Sie die Datei als UTF-8 („CSV UTF-8“ in einer Tabellenkalkulation)</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is too large: a size is at most %2</source>
        <translation>%1 ist zu groß: Ein Maß ist höchstens %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is unknown</source>
        <translation>%1 ist unbekannt</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>a column has no name</source>
        <translation>Eine Spalte hat keinen Namen</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>and %n more mistake</source>
        <comment>and %n more mistakes</comment>
        <translation>
            <numerusform>und %n weiterer Fehler</numerusform>
            <numerusform>und %n weitere Fehler</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>column &quot;%1&quot;</source>
        <translation>Spalte „%1“</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>column %1: the byte %2 is none of %3</source>
        <translation>Zeichen %1: Das Byte %2 gibt es in %3 nicht</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>field</source>
        <translation>Ein Feld</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>field &quot;%1&quot;</source>
        <translation>Feld „%1“</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the file is %1; open it in a spreadsheet and save it as CSV</source>
        <translation>Die Datei ist %1; öffnen Sie sie in einer Tabellenkalkulation und speichern Sie sie als CSV</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the line has %1 columns; a room has %2</source>
        <translation>Die Zeile hat %1 Spalten; ein Raum hat %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the line has %1 fields and the header %2</source>
        <translation>Felder in der Zeile: %1, in der Kopfzeile: %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the text has more than %1 MB</source>
        <translation>Der Text hat mehr als %1 MB</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>there are no headings, and %n column: without headings they are %1, of which the first %2 are needed</source>
        <comment>there are no headings, and %n columns: without headings they are %1, of which the first %2 are needed</comment>
        <translation>
            <numerusform>Es gibt keine Überschriften und nur %n Spalte: Ohne Überschriften sind es %1, von denen die ersten %2 erforderlich sind</numerusform>
            <numerusform>Es gibt keine Überschriften und %n Spalten: Ohne Überschriften sind es %1, von denen die ersten %2 erforderlich sind</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>there is no text to paste</source>
        <translation>Es gibt keinen Text zum Einfügen</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: %1</source>
        <translation>Die Tabelle kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: %1.</source>
        <translation>Die Tabelle kann nicht erstellt werden: %1.</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: no sheet %1.</source>
        <translation>Die Tabelle kann nicht erstellt werden: kein Blatt %1.</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: out of memory.</source>
        <translation>Die Tabelle kann nicht erstellt werden: zu wenig Speicher.</translation>
    </message>
    <message>
        <location filename="../src/files/TextEncoding.cpp"/>
        <source>The encoding &quot;%1&quot; is not known; &quot;iconv -l&quot; lists those that are.</source>
        <translation>Die Zeichenkodierung „%1“ ist unbekannt; „iconv -l“ nennt die bekannten.</translation>
    </message>
    <message>
        <location filename="../src/improve/ImproveFills.cpp"/>
        <source>The improved layout is longer than before and was discarded.</source>
        <translation>Die verbesserte Anordnung ist länger als vorher und wurde verworfen.</translation>
    </message>
    <message>
        <location filename="../src/order/CarpetRequests.h"/>
        <source>No room with an area has a carpet.</source>
        <translation>Kein Raum mit einer Fläche hat Teppichboden.</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>a refused row has figures</source>
        <translation>eine abgelehnte Zeile hat Werte</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>not every strip is laid</source>
        <translation>nicht jeder Streifen ist verlegt</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 belongs to no room</source>
        <translation>Stück %1 gehört zu keinem Raum</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 does not begin where its strip does</source>
        <translation>Stück %1 beginnt nicht dort, wo sein Streifen beginnt</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 does not know its strips</source>
        <translation>Stück %1 kennt seine Streifen nicht</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 has no length</source>
        <translation>Stück %1 hat keine Länge</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 is not as wide as its strip</source>
        <translation>Stück %1 ist nicht so breit wie sein Streifen</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 is not on the roll</source>
        <translation>Stück %1 liegt nicht auf der Rolle</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 do not match across the roll</source>
        <translation>die Stücke %1 und %2 passen quer zur Rolle nicht im Rapport</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 do not match along the roll</source>
        <translation>die Stücke %1 und %2 passen längs der Rolle nicht im Rapport</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 overlap</source>
        <translation>die Stücke %1 und %2 überlappen sich</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the area bought is wrong</source>
        <translation>die gekaufte Fläche ist falsch</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the area of the rooms is wrong</source>
        <translation>die Fläche der Räume ist falsch</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the best row is not the best</source>
        <translation>die beste Zeile ist nicht die beste</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the labels are not in a row</source>
        <translation>die Buchstaben sind nicht fortlaufend</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the least length is above the length needed</source>
        <translation>die kürzestmögliche Länge ist größer als die benötigte</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the length needed is not the end of the last piece</source>
        <translation>die benötigte Länge ist nicht das Ende des letzten Stücks</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the length to be ordered is wrong</source>
        <translation>die zu bestellende Länge ist falsch</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the pieces are not in cutting order</source>
        <translation>die Stücke stehen nicht in der Reihenfolge des Zuschnitts</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the price is missing or made up</source>
        <translation>der Preis fehlt oder ist erfunden</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the price is wrong</source>
        <translation>der Preis ist falsch</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the roll&apos;s width is not its whole units</source>
        <translation>die Rollenbreite ist nicht in ganzen Einheiten</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the rows are not in their order</source>
        <translation>die Zeilen stehen nicht in ihrer Reihenfolge</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the seams or joins are not counted right</source>
        <translation>die Nähte sind nicht richtig gezählt</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 does not have its parts numbered</source>
        <translation>die Teile des Streifens von Stück %1 sind nicht nummeriert</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has a part that is too short</source>
        <translation>der Streifen von Stück %1 hat ein zu kurzes Teil</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has parts that do not follow each other</source>
        <translation>die Teile des Streifens von Stück %1 folgen nicht aufeinander</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has too many parts</source>
        <translation>der Streifen von Stück %1 hat zu viele Teile</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 is not laid whole</source>
        <translation>der Streifen von Stück %1 ist nicht ganz verlegt</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the usable width is not what the selvage leaves</source>
        <translation>die nutzbare Breite ist nicht, was die Webkante übrig lässt</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the waste is wrong</source>
        <translation>der Verschnitt ist falsch</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>there are pieces without figures</source>
        <translation>es gibt Stücke ohne Werte</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>there is not a row for each roll and lay</source>
        <translation>es gibt nicht für jede Rolle und Verlegung eine Zeile</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>A fill narrower than %1: %2.</source>
        <translation>Ein Füllstück schmaler als %1: %2.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>Less trim than asked for: %1.</source>
        <translation>Weniger Zugabe als gewünscht: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>Nothing is allowed for trimming.</source>
        <translation>Es ist keine Zugabe vorgesehen.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>The roll of %1 counts as %2, a centimetre short of the standard one.</source>
        <translation>Die Rolle von %1 zählt als %2, einen Zentimeter weniger als die übliche.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least carpet, for no roll has a price; of equal ones, the shortest seams and joins.</source>
        <translation>Am besten ist der geringste Bedarf an Teppichboden, denn keine Rolle hat einen Preis; bei Gleichstand die kürzesten Nähte.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least carpet, for these rolls have no price: %1.</source>
        <translation>Am besten ist der geringste Bedarf an Teppichboden, denn diese Rollen haben keinen Preis: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least price; of equal ones, the shortest seams and joins.</source>
        <translation>Am besten ist der niedrigste Preis; bei Gleichstand die kürzesten Nähte.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best: %1, %2 in one length without a join</source>
        <translation>Am besten: %1, %2 in einer durchgehenden Länge</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Chosen: %1, %2 in one length without a join</source>
        <translation>Gewählt: %1, %2 in einer durchgehenden Länge</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/order/CutLines.cpp"/>
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation>
            <numerusform>%n Rapport</numerusform>
            <numerusform>%n Rapporte</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>drop %1 of %2</source>
        <translation>Bahn %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>fill %1 of %2</source>
        <translation>Füllstück %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>part %1 of %2</source>
        <translation>Teil %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <location filename="../src/order/MakeOrder.cpp"/>
        <source>The order was discarded: %1.</source>
        <translation>Die Bestellung wurde verworfen: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 cannot match: its fill of %2 has no place across the roll&apos;s usable width of %3 by the repeat of %4.</source>
        <translation>%1 passt nicht im Rapport: Für das Füllstück von %2 gibt es beim Rapport von %4 keinen Platz auf der nutzbaren Breite von %3.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 cannot match: strips as wide as the roll lie beside each other in it, and the roll&apos;s usable width of %2 is not a whole number of repeats of %3 across.</source>
        <translation>%1 passt nicht im Rapport: Streifen in voller Rollenbreite liegen darin nebeneinander, und die nutzbare Rollenbreite von %2 ist kein Vielfaches des Rapports von %3 quer.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 is too long: with its trim a strip may be %2 long.</source>
        <translation>%1 ist zu lang: Mit Zugabe darf ein Streifen höchstens %2 lang sein.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>Room %1</source>
        <translation>Raum %1</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>Room %1 (%2)</source>
        <translation>Raum %1 (%2)</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>The roll is no wider than its selvage.</source>
        <translation>Die Rolle ist nicht breiter als ihre Webkanten.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>There are more than %1 strips: choose a wider roll or order the rooms in two projects.</source>
        <translation>Es sind mehr als %1 Streifen: Wählen Sie eine breitere Rolle oder bestellen Sie die Räume in zwei Projekten.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>room %1 (%2)</source>
        <translation>Raum %1 (%2)</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <source>cross</source>
        <translation>quer</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <source>down</source>
        <translation>längs</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <location filename="../src/order/SheetFront.cpp"/>
        <location filename="../src/screens/rooms/RoomTableModel.cpp"/>
        <source>none</source>
        <translation>ohne</translation>
    </message>
    <message>
        <location filename="../src/order/RollPlan.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 % of what is bought</source>
        <translation>%1 % vom Einkauf</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 across, %2 along, half drop; drift %3</source>
        <translation>%1 quer, %2 längs, halber Versatz; Verzug %3</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 across, %2 along; drift %3</source>
        <translation>%1 quer, %2 längs; Verzug %3</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 along, %2 across; part of the sizes</source>
        <translation>%1 längs, %2 quer; in den Maßen enthalten</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 feet</source>
        <translation>%1 Fuß</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 in one length without a join</source>
        <translation>%1 in einer durchgehenden Länge</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 sq. ft.</source>
        <translation>%1 ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 sq. m</source>
        <translation>%1 m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1, least possible %2</source>
        <translation>%1, kürzestmöglich %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1, the least possible</source>
        <translation>%1, kürzer geht es nicht</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1, without the selvage of %2 on each side</source>
        <translation>%1, ohne die Webkante von %2 an jeder Seite</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Area bought</source>
        <translation>Gekaufte Fläche</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Area of the rooms</source>
        <translation>Fläche der Räume</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Bought sq. ft.</source>
        <translation>Gekauft ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Bought sq. m</source>
        <translation>Gekauft m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Carpet</source>
        <translation>Teppichboden</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Cross joins</source>
        <translation>Quernähte</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>How it is cut</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Joins</source>
        <translation>Quernähte</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Joins cm</source>
        <translation>Quernähte cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Lay</source>
        <translation>Verlegung</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Least possible</source>
        <translation>Kürzestmöglich</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Least possible cm</source>
        <translation>Kürzestmöglich cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Needed</source>
        <translation>Benötigt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Needed cm</source>
        <translation>Benötigt cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>No order</source>
        <translation>Keine Bestellung</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order</source>
        <translation>Bestellen</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order and cutting sheet</source>
        <translation>Bestell- und Zuschnittblatt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order cm</source>
        <translation>Bestellen cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Parts of a strip</source>
        <translation>Teile eines Streifens</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pattern repeat</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pieces</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pile</source>
        <translation>Flor</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Roll width</source>
        <translation>Rollenbreite</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Rooms sq. ft.</source>
        <translation>Räume ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Rooms sq. m</source>
        <translation>Räume m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Seams</source>
        <translation>Längsnähte</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Seams cm</source>
        <translation>Längsnähte cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Side seams</source>
        <translation>Längsnähte</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Strips with trim</source>
        <translation>Streifen mit Zugabe</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>To be ordered</source>
        <translation>Zu bestellen</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trim</source>
        <translation>Zugabe</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trimmed sq. ft.</source>
        <translation>Mit Zugabe ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trimmed sq. m</source>
        <translation>Mit Zugabe m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Usable width</source>
        <translation>Nutzbare Breite</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Wall base</source>
        <translation>Sockelleiste</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Waste</source>
        <translation>Verschnitt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Waste %</source>
        <translation>Verschnitt %</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>What else the project needs</source>
        <translation>Was das Projekt sonst braucht</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>What to buy</source>
        <translation>Einkauf</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>at most %1, none shorter than %2</source>
        <translation>höchstens %1, keines kürzer als %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>at most %1, none shorter than %2, of rooms too</source>
        <translation>höchstens %1, keines kürzer als %2, auch bei Räumen bis Rollenbreite</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>cross: room lengths across the roll</source>
        <translation>quer: Raumlängen quer zur Rolle</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>down: room widths across the roll</source>
        <translation>längs: Raumbreiten quer zur Rolle</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>the same way on all pieces: see the arrows</source>
        <translation>auf allen Stücken in derselben Richtung: siehe Pfeile</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <location filename="../src/order/SheetLabels.h"/>
        <source>%1 continues</source>
        <translation>%1 weiter</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source> Where a piece must match, cut on the pattern, not on the tape.</source>
        <translation> Wo ein Stück im Rapport passen muss, nach dem Muster schneiden, nicht nach dem Maßband.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut in this order. From and to count along the roll from its start, across from its usable edge; centimetres.</source>
        <translation>In dieser Reihenfolge zuschneiden. Von und bis zählen vom Rollenanfang an, quer von der nutzbaren Kante; Zentimeter.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut in this order. From and to count along the roll from its start, across from its usable edge; feet and inches.</source>
        <translation>In dieser Reihenfolge zuschneiden. Von und bis zählen vom Rollenanfang an, quer von der nutzbaren Kante; Fuß und Zoll.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetPage.cpp"/>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetRoll.cpp"/>
        <source>Pieces too small to be labelled on the roll</source>
        <translation>Stücke, die für eine Beschriftung auf der Rolle zu klein sind</translation>
    </message>
    <message>
        <location filename="../src/order/SheetRoll.cpp"/>
        <source>pile</source>
        <translation>Flor</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Choose a default printer in the system&apos;s printer settings, or set this one up there.</source>
        <translation>Wählen Sie in den Druckereinstellungen des Systems einen Standarddrucker, oder richten Sie dort diesen ein.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Let it accept jobs in the system&apos;s printer settings, or choose another default printer there.</source>
        <translation>Lassen Sie ihn in den Druckereinstellungen des Systems Aufträge annehmen, oder wählen Sie dort einen anderen Standarddrucker.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Look at the printer in the system&apos;s printer settings, then print again.</source>
        <translation>Sehen Sie in den Druckereinstellungen des Systems nach dem Drucker und drucken Sie dann noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Look whether the page comes out before you print again.</source>
        <translation>Sehen Sie nach, ob die Seite herauskommt, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Put that right at the printer, then print again.</source>
        <translation>Beheben Sie das am Drucker und drucken Sie dann noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Start it again in the system&apos;s printer settings, or choose another default printer there.</source>
        <translation>Starten Sie ihn in den Druckereinstellungen des Systems wieder, oder wählen Sie dort einen anderen Standarddrucker.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 %2.</source>
        <translation>Der Drucker %1 %2.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 does not tell whether it took the job. %2</source>
        <translation>Der Drucker %1 sagt nicht, ob er den Auftrag angenommen hat. %2</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 is stopped.</source>
        <translation>Der Drucker %1 ist angehalten.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 refused the job: %2.</source>
        <translation>Der Drucker %1 hat den Auftrag abgelehnt: %2.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 takes no jobs.</source>
        <translation>Der Drucker %1 nimmt keine Aufträge an.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printing system does not name the default printer: %1.</source>
        <translation>Das Drucksystem nennt den Standarddrucker nicht: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>There is no default printer.</source>
        <translation>Es gibt keinen Standarddrucker.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>There is no printer %1.</source>
        <translation>Es gibt keinen Drucker %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>Check that the printing system runs and that its network is there, then print again.</source>
        <translation>Prüfen Sie, ob das Drucksystem läuft und sein Netz da ist, und drucken Sie dann noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system (%1) cannot be reached.</source>
        <translation>Das Drucksystem (%1) ist nicht erreichbar.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system cannot be asked: %1.</source>
        <translation>Das Drucksystem kann nicht gefragt werden: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not answer: it hung up.</source>
        <translation>Das Drucksystem antwortet nicht: Es hat die Verbindung beendet.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not answer: it keeps silent.</source>
        <translation>Das Drucksystem antwortet nicht: Es schweigt.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not let this user in.</source>
        <translation>Das Drucksystem lässt diesen Benutzer nicht zu.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system refused the request: %1.</source>
        <translation>Das Drucksystem hat die Anfrage abgelehnt: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>Whoever looks after the printing system can allow it.</source>
        <translation>Wer das Drucksystem betreut, kann es erlauben.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.cpp"/>
        <source>TARN RESULT  (PROJECT: %1)  %2</source>
        <translation>TARN-ERGEBNIS  (PROJEKT: %1)  %2</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.h"/>
        <source>The list stands on the screen, in the drawing saved as SVG, and in what tarn-estimate --text writes.</source>
        <translation>Die Liste steht auf dem Bildschirm, in der als SVG gespeicherten Zeichnung und in dem, was tarn-estimate --text schreibt.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.h"/>
        <source>The page cannot show the cut list: the layout is too long for it.</source>
        <translation>Die Seite kann die Zuschnittliste nicht zeigen: Die Anordnung ist zu lang dafür.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePaper.cpp"/>
        <source>The estimate could not be put on paper.</source>
        <translation>Die Berechnung konnte nicht zu Papier gebracht werden.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePaper.cpp"/>
        <source>The paper is too small for the estimate.</source>
        <translation>Das Papier ist zu klein für die Berechnung.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>ORDER (PROJECT: %1)</source>
        <translation>BESTELLUNG (PROJEKT: %1)</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The order could not be put on a further page.</source>
        <translation>Die Bestellung konnte nicht auf eine weitere Seite gebracht werden.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The order could not be put on paper.</source>
        <translation>Die Bestellung konnte nicht zu Papier gebracht werden.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The paper is too small for the order.</source>
        <translation>Das Papier ist zu klein für die Bestellung.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>ORDER</source>
        <translation>BESTELLUNG</translation>
    </message>
    <message>
        <location filename="../src/paper/Paper.h"/>
        <source>Choose a larger paper in the system&apos;s printer settings.</source>
        <translation>Wählen Sie in den Druckereinstellungen des Systems ein größeres Papier.</translation>
    </message>
    <message>
        <location filename="../src/paper/PdfFile.cpp"/>
        <source>No page can be made on paper of that size.</source>
        <translation>Auf Papier dieser Größe ist keine Seite möglich.</translation>
    </message>
    <message>
        <location filename="../src/paper/Printer.h"/>
        <source>Warning: Your printer is not ready!<byte value="xd"/>
<byte value="xd"/>
You couldn&apos;t print in the program</source>
        <translation>Warnung: Ihr Drucker ist nicht bereit!<byte value="xd"/>
<byte value="xd"/>
Das Programm kann nicht drucken</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has a paper jam</source>
        <translation>hat einen Papierstau</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has an open cover</source>
        <translation>hat eine offene Abdeckung</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has an open door</source>
        <translation>hat eine offene Klappe</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is off line</source>
        <translation>ist offline</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of ink or toner</source>
        <translation>hat keine Tinte oder keinen Toner mehr</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of paper</source>
        <translation>hat kein Papier mehr</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of toner</source>
        <translation>hat keinen Toner mehr</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The paper is too small for the report.</source>
        <translation>Das Papier ist zu klein für den Bericht.</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The report could not be put on a further page.</source>
        <translation>Der Bericht konnte nicht auf eine weitere Seite gebracht werden.</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The report could not be put on paper.</source>
        <translation>Der Bericht konnte nicht zu Papier gebracht werden.</translation>
    </message>
    <message>
        <location filename="../src/project/Coverings.cpp"/>
        <source>CARPET-%1</source>
        <translation>TEPPICH-%1</translation>
    </message>
    <message>
        <location filename="../src/project/Coverings.cpp"/>
        <source>TILE-%1</source>
        <translation>FLIESE-%1</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>%1 &quot;%2&quot;: %3</source>
        <translation>%1 „%2“: %3</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>A roll has no width: %1</source>
        <translation>Eine Rolle hat keine Breite: %1</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>The price &quot;%1&quot; of the roll %2: a comma is not taken. Write it with a point, as 18.50.</source>
        <translation>Der Preis „%1“ der Rolle %2: Ein Komma gilt nicht. Schreiben Sie ihn mit Punkt, wie 18.50.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>a comma is not taken. Write the length as 12ft6in, 9.5in, 366cm or 3.66m.</source>
        <translation>Ein Komma wird nicht angenommen. Schreiben Sie die Länge wie 12ft6in, 9.5in, 366cm oder 3.66m.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>the price must be a number of 0 or more.</source>
        <translation>Der Preis muss eine Zahl von mindestens 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>write the length as 12ft6in, 18in, 366cm or 3.66m.</source>
        <translation>Schreiben Sie die Länge wie 12ft6in, 18in, 366cm oder 3.66m.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be between %2 and %3.</source>
        <translation>%1 muss zwischen %2 und %3 liegen.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be whole centimetres: give it, and the rooms, in the units of the pattern.</source>
        <translation>%1 muss in ganzen Zentimetern angegeben sein: Geben Sie Rapport und Räume in den Einheiten des Musters an.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be whole inches: give it, and the rooms, in the units of the pattern.</source>
        <translation>%1 muss in ganzen Zoll angegeben sein: Geben Sie Rapport und Räume in den Einheiten des Musters an.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A half drop needs a pattern repeat along.</source>
        <translation>Ein halber Versatz braucht einen Rapport längs.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A half drop needs an even pattern repeat along.</source>
        <translation>Bei halbem Versatz muss der Rapport längs eine gerade Zahl sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A roll must be between %1 and %2 wide.</source>
        <translation>Eine Rolle muss zwischen %1 und %2 breit sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A strip may have 1 to %1 parts.</source>
        <translation>Ein Streifen darf 1 bis %1 Teile haben.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>At most %1 rolls can be compared.</source>
        <translation>Höchstens %1 Rollen können verglichen werden.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>Improved: %1, %2</source>
        <translation>Verbessert: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The lay must be down, cross or both.</source>
        <translation>Die Verlegung muss längs (down), quer (cross) oder beides (both) sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern across</source>
        <translation>Der Rapport quer</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern along</source>
        <translation>Der Rapport längs</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern drift must be 0 to 10 percent.</source>
        <translation>Der Musterverzug muss 0 bis 10 Prozent sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The price of the roll %1 must be a number of 0 or more.</source>
        <translation>Der Preis der Rolle %1 muss eine Zahl von mindestens 0 sein.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The roll</source>
        <translation>Die Rolle</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The search may take 0 to 3600 seconds.</source>
        <translation>Die Suche darf 0 bis 3600 Sekunden dauern.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The selvage</source>
        <translation>Die Webkante</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The shortest part</source>
        <translation>Das kürzeste Teil</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The step</source>
        <translation>Die Stufe</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The trim across</source>
        <translation>Die Zugabe quer</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The trim along</source>
        <translation>Die Zugabe längs</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>There is no roll to order from: name its width.</source>
        <translation>Es gibt keine Rolle, von der bestellt wird: Nennen Sie ihre Breite.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>this one is %1</source>
        <translation>für die vorhandene gilt: %1</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK</source>
        <translation>   Nr.      BREITE  LÄNGE       yd²      BELAG   SOCKEL   LÄNGE      Nr.       BEMERKUNG</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK</source>
        <translation>   Nr.      BREITE  LÄNGE       m²       BELAG   SOCKEL   LÄNGE      Nr.       BEMERKUNG</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source> ITEM                                      SQ.     CARPET             BASE         ROOM</source>
        <translation> POS.                                    FLÄCHE                       SOCKEL       RAUM</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>PROJECT NAME:   %1</source>
        <translation>PROJEKTNAME:   %1</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>The wall base of room %1 is longer than %2 %3: correct its size or its base.</source>
        <translation>Die Sockelleiste von Raum %1 ist länger als %2 %3: Berichtigen Sie seine Maße oder seinen Sockel.</translation>
    </message>
    <message>
        <location filename="../src/project/Report.h"/>
        <source>ENTERED DATA REPORT</source>
        <translation>BERICHT DER EINGABEN</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>change room %1</source>
        <translation>Raum %1 ändern</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>change rooms</source>
        <translation>Räume ändern</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>delete room %1</source>
        <translation>Raum %1 löschen</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>new room %1</source>
        <translation>neuer Raum %1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Example1: L2W1 - means 2 x Length + 1 x Width</source>
        <translation>Beispiel 1: L2W1 - heißt 2 x Länge + 1 x Breite</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Room length:<byte value="xd"/>
%1</source>
        <translation>Raumlänge:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Room width:<byte value="xd"/>
%1</source>
        <translation>Raumbreite:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Sorry, you entered wrong string for base</source>
        <translation>Die Eingabe für den Sockel ist falsch</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The length is empty: a new room needs both its sizes.</source>
        <translation>Die Länge ist leer: Ein neuer Raum braucht beide Maße.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The length of a room can be %1 %2 at most.</source>
        <translation>Die Länge eines Raums kann höchstens %1 %2 sein.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The width is empty: a new room needs both its sizes.</source>
        <translation>Die Breite ist leer: Ein neuer Raum braucht beide Maße.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The width of a room can be %1 %2 at most.</source>
        <translation>Die Breite eines Raums kann höchstens %1 %2 sein.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>You should enter L or W with 1 or 2 to be calculated</source>
        <translation>Geben Sie L oder W mit 1 oder 2 ein, um zu rechnen</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>Example2: W2 - means 2 x Width and Length is not calculated.</source>
        <translation>Beispiel 2: W2 - heißt 2 x Breite, und die Länge zählt nicht.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>Example2: W21 - means 2 x Width and Length is not calculated.</source>
        <translation>Beispiel 2: W21 - heißt 2 x Breite, und die Länge zählt nicht.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>The Size of room is not correct. Data is not changed</source>
        <translation>Die Größe des Raums ist nicht richtig. Die Daten bleiben unverändert</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>The project is full: it can hold 501 rooms.</source>
        <translation>Das Projekt ist voll: Es fasst 501 Räume.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>BASE</source>
        <translation>SOCKEL</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>COVERING</source>
        <translation>BELAG</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ITEM</source>
        <translation>NR.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>LENGTH</source>
        <translation>LÄNGE</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>New room</source>
        <translation>Neuer Raum</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>New room, half typed</source>
        <translation>Neuer Raum, halb eingegeben</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>REMARK</source>
        <translation>BEMERKUNG</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ROOM</source>
        <translation>RAUM</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>SQ. FT.</source>
        <translation>FT²</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>SQ. M</source>
        <translation>M²</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>SQ. YD.</source>
        <translation>YD²</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>TYPE</source>
        <translation>BELAG</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>WIDTH</source>
        <translation>BREITE</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <location filename="../src/screens/rooms/RoomListFrame.cpp"/>
        <location filename="../src/screens/rooms/RoomTable.cpp"/>
        <source>ROOMS</source>
        <translation>RÄUME</translation>
    </message>
    <message>
        <location filename="../src/project/RoomSize.cpp"/>
        <source>centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <location filename="../src/project/RoomSize.cpp"/>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 is dropped: for %2 type %3</source>
        <translation>%1 entfällt: für %2 %3 eingeben</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 on from %2</source>
        <translation>%1 nach %2</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1: type the number alone, such as %2</source>
        <translation>%1: nur die Zahl eingeben, etwa %2</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>A sign is not taken</source>
        <translation>Ein Vorzeichen gilt nicht</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>beside %1</source>
        <translation>neben %1</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <location filename="../src/order/OrderStrips.cpp"/>
        <location filename="../src/order/RollPlan.cpp"/>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>room %1</source>
        <translation>Raum %1</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>ABOUT</source>
        <translation>ÜBER</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>About</source>
        <translation>Über das Programm</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Configuration file</source>
        <translation>Konfigurationsdatei</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Drafts</source>
        <translation>Entwürfe</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <location filename="../src/screens/rooms/ReportFrame.cpp"/>
        <source>&amp;CLOSE</source>
        <translation>SC&amp;HLIESSEN</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location filename="../src/screens/Display.h"/>
        <source>Sorry, the program must run under display resolution 800 X 600 or higher<byte value="xd"/>
Please change the display resolution!</source>
        <translation>Das Programm braucht eine Bildschirmauflösung von 800 X 600 oder höher<byte value="xd"/>
Bitte ändern Sie die Bildschirmauflösung!</translation>
    </message>
    <message>
        <location filename="../src/screens/DraftKeeper.cpp"/>
        <source>What is not saved could not be kept. %1</source>
        <translation>Was nicht gespeichert ist, konnte nicht gesichert werden. %1</translation>
    </message>
    <message>
        <location filename="../src/screens/Guard.cpp"/>
        <source>The reason is not known.</source>
        <translation>Der Grund ist nicht bekannt.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;ABOUT</source>
        <translation>ÜBE&amp;R</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;FIND NEXT</source>
        <translation>&amp;WEITERSUCHEN</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;WORD</source>
        <translation>W&amp;ORT</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>GUIDE</source>
        <translation>ANLEITUNG</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>The guide could not be searched.</source>
        <translation>Die Anleitung konnte nicht durchsucht werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>The guide does not have this word.</source>
        <translation>Dieses Wort steht nicht in der Anleitung.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>This is not in the guide, and the program opens nothing else: %1</source>
        <translation>Das steht nicht in der Anleitung, und anderes öffnet das Programm nicht: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The text could not be shown.</source>
        <translation>Der Text konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.cpp"/>
        <source>E&amp;NTERED IN FEET</source>
        <translation>I&amp;N FUSS EINGEGEBEN</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.cpp"/>
        <source>E&amp;NTERED IN METRIC</source>
        <translation>METRISCH EI&amp;NGEGEBEN</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.h"/>
        <source>Data is saved</source>
        <translation>Die Daten sind gespeichert</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.h"/>
        <source>The project could not be saved.</source>
        <translation>Das Projekt konnte nicht gespeichert werden.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>One more job that waited behind it was not printed either.</source>
        <comment>%n more jobs that waited behind it were not printed either.</comment>
        <translation>
            <numerusform>Ein weiterer Auftrag, der dahinter wartete, wurde auch nicht gedruckt.</numerusform>
            <numerusform>%n weitere Aufträge, die dahinter warteten, wurden auch nicht gedruckt.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or press SAVE AS and choose &quot;%1&quot;.</source>
        <translation>Oder drücken Sie SPEICHERN ALS und wählen Sie „%1“.</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or right-click what is shown and choose &quot;%1&quot;.</source>
        <translation>Oder klicken Sie mit der rechten Maustaste auf das Gezeigte und wählen Sie „%1“.</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or show it again, right-click it and choose &quot;%1&quot;.</source>
        <translation>Oder zeigen Sie es wieder an, klicken Sie mit der rechten Maustaste darauf und wählen Sie „%1“.</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or show the order again, press SAVE AS and choose &quot;%1&quot;.</source>
        <translation>Oder zeigen Sie die Bestellung wieder an, drücken Sie SPEICHERN ALS und wählen Sie „%1“.</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.h"/>
        <source>Printing ...</source>
        <translation>Druckt ...</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>Nothing was made.</source>
        <translation>Es wurde nichts angelegt.</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>The program could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>There is no backup of the data as it was before this change.</source>
        <translation>Es gibt keine Sicherung der Daten vor dieser Änderung.</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.cpp"/>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.cpp"/>
        <source>The file %1 cannot be written: %2</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;CSV</source>
        <translation>Als &amp;CSV speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;DXF</source>
        <translation>Als &amp;DXF speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;PDF</source>
        <translation>Als &amp;PDF speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;SVG</source>
        <translation>Als &amp;SVG speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as spreadsheet (&amp;XLSX)</source>
        <translation>Als Tabelle speichern (&amp;XLSX)</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Another program has changed the project %1 since it was opened here.<byte value="xd"/>
What that program stored is lost when you replace it.</source>
        <translation>Ein anderes Programm hat das Projekt %1 geändert, seit es hier geöffnet wurde.<byte value="xd"/>
Was jenes Programm gespeichert hat, geht verloren, wenn Sie es ersetzen.</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Enter the new project name</source>
        <translation>Name des neuen Projekts</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Save it as a new project</source>
        <translation>Als neues Projekt speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>The project %1 is no longer there: another program has renamed or deleted it.<byte value="xd"/>
Its rooms can be saved as a new project.</source>
        <translation>Das Projekt %1 ist nicht mehr da: Ein anderes Programm hat es umbenannt oder gelöscht.<byte value="xd"/>
Seine Räume können als neues Projekt gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>GUIDE (F1)</source>
        <translation>ANLEITUNG (F1)</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The guide could not be shown.</source>
        <translation>Die Anleitung konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The menu could not be opened.</source>
        <translation>Das Menü konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The screen could not be shown.</source>
        <translation>Die Seite konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <location filename="../src/screens/TitledScreen.cpp"/>
        <source>The screen could not be arranged.</source>
        <translation>Die Seite konnte nicht angeordnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;CANCEL</source>
        <translation>ABBRE&amp;CHEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;FEET</source>
        <translation>&amp;FUSS</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;MATCH PATTERN</source>
        <translation>&amp;RAPPORT</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;WIDTH:</source>
        <translation>BRE&amp;ITE:</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>CARPET - &amp;%1</source>
        <translation>TEPPICH - &amp;%1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>CARPET WIDT&amp;H OTHER</source>
        <translation>AN&amp;DERE BREITE</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>Estimate choices</source>
        <translation>Auswahl für die Berechnung</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>I&amp;NCHES</source>
        <translation>ZO&amp;LL</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>L&amp;AST CHOICES</source>
        <translation>LETZTE &amp;AUSWAHL</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>LEN&amp;GTH:</source>
        <translation>LÄ&amp;NGE:</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>The choice could not be shown.</source>
        <translation>Die Auswahl konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;DOWN LAY</source>
        <translation>LÄNGS VERLEG&amp;T</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>CROSS &amp;LAY</source>
        <translation>&amp;QUER VERLEGT</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>INCHES</source>
        <translation>ZOLL</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>&amp;PASTE CUTS</source>
        <translation>LIST&amp;E EINFÜGEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>&amp;REDRAW</source>
        <translation>NEU ZEIC&amp;HNEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>ESTIMATE FOR PROJECT: %1</source>
        <translation>BERECHNUNG FÜR PROJEKT: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>No better layout was found.</source>
        <translation>Keine bessere Anordnung gefunden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>No better layout was found: %1.</source>
        <translation>Keine bessere Anordnung gefunden: %1.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>PROJ: %1</source>
        <translation>PROJ: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The estimate could not be made.</source>
        <translation>Die Berechnung war nicht möglich.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The layout could not be drawn.</source>
        <translation>Die Anordnung konnte nicht gezeichnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The layout could not be improved.</source>
        <translation>Die Anordnung konnte nicht verbessert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The order could not be opened.</source>
        <translation>Die Bestellung konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The picture could not be saved.</source>
        <translation>Das Bild konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The whole roll with its list, or the drawing: key D</source>
        <translation>Die ganze Rolle mit ihrer Liste oder die Zeichnung: Taste D</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>There is not data in the database</source>
        <translation>Es sind keine Daten in der Datenbank</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;ESTIMATE</source>
        <translation>&amp;BERECHNEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/ReportFrame.cpp"/>
        <source>PR&amp;INT</source>
        <translation>DRUC&amp;KEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;BACK</source>
        <translation>&amp;ZURÜCK</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The screen could not be closed.</source>
        <translation>Die Seite konnte nicht geschlossen werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;SAVE</source>
        <translation>&amp;SPEICHERN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>&amp;UNDO</source>
        <translation>RÜCK&amp;GÄNGIG</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>IMPRO&amp;VE</source>
        <translation>&amp;VERBESSERN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>IMPRO&amp;VE: %1</source>
        <translation>&amp;VERBESSERN: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Fills so far: %1</source>
        <translation>Füllstücke bisher: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>IMPROVE</source>
        <translation>VERBESSERN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>LEAVE IT</source>
        <translation>LASSEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Looking for a better layout</source>
        <translation>Eine bessere Anordnung wird gesucht</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>No layout takes less than: %1</source>
        <translation>Keine Anordnung braucht weniger als: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>STOP</source>
        <translation>STOPP</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>TAKE IT</source>
        <translation>NEHMEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Time used</source>
        <translation>Verbrauchte Zeit</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>can be laid instead of the layout shown.</source>
        <translation>kann statt der gezeigten Anordnung gelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>&amp;Continue</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>*ESTIMATION OPTIONS*</source>
        <translation>*OPTIONEN DER BERECHNUNG*</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>ESTIMATING FILLS MENU</source>
        <translation>FÜLLSTÜCKE BERECHNEN</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>MAXIMUM NUMBER OF PIECES PER FILL</source>
        <translation>HÖCHSTZAHL DER TEILE JE FÜLLSTÜCK</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>MINIMUM CUT LENGTH</source>
        <translation>KÜRZESTE SCHNITTLÄNGE</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>No part of a fill becomes shorter than %1</source>
        <translation>Kein Teil eines Füllstücks wird kürzer als %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>SELECT</source>
        <translation>AUSWAHL</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>Search progress</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>The estimate could not be emptied.</source>
        <translation>Die Berechnung konnte nicht geleert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>The fills could not be laid out.</source>
        <translation>Die Füllstücke konnten nicht angeordnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>Layout drawing</source>
        <translation>Zeichnung der Anordnung</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>The layout could not be shown.</source>
        <translation>Die Anordnung konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>Zoom: + and −, or Ctrl and wheel.  0: actual size.  Double click: everything.</source>
        <translation>Zoom: + und −, oder Strg und Mausrad.  0: wahre Größe.  Doppelklick: alles.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The project %1 could not be loaded. %2</source>
        <translation>Das Projekt %1 konnte nicht geladen werden. %2</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The project %1 is not stored as it should be:</source>
        <translation>Das Projekt %1 ist nicht so gespeichert, wie es sein sollte:</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The size of a room: %1</source>
        <translation>Die Größe eines Raums: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;BACKWARD</source>
        <translation>&amp;ZURÜCK</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;Metric</source>
        <translation>&amp;Metrisch</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;TAKE BACK ORDER OF %1</source>
        <translation>BESTELLUNG VOM %1 ZU&amp;RÜCKHOLEN</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;TAKE BACK ROOMS OF %1</source>
        <translation>&amp;RÄUME VOM %1 ZURÜCKHOLEN</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>*SOLVANE OPTIONS*</source>
        <translation>*SOLVANE-OPTIONEN*</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>EA&amp;RLIER</source>
        <translation>&amp;FRÜHERE</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>ENTER/E&amp;DIT DATA</source>
        <translation>&amp;DATEN EINGEBEN</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>From its next start on the program speaks this language: %1</source>
        <translation>Vom nächsten Start an spricht das Programm diese Sprache: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>NOT SAVED</source>
        <translation>NICHT GESPEICHERT</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>OPERATION MENU</source>
        <translation>HAUPTMENÜ</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>TILES ONLY</source>
        <translation>NUR FLIESEN</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The language could not be chosen.</source>
        <translation>Die Sprache konnte nicht gewählt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The projects could not be shown.</source>
        <translation>Die Projekte konnten nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The rooms could not be opened.</source>
        <translation>Die Räume konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The rooms could not be taken back.</source>
        <translation>Die Räume konnten nicht zurückgeholt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The units could not be changed.</source>
        <translation>Die Einheiten konnten nicht geändert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>a room that was being typed</source>
        <translation>ein Raum, der gerade eingegeben wurde</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>take back rooms of %1</source>
        <translation>Räume vom %1 zurückholen</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>the choices of an order</source>
        <translation>die Auswahl einer Bestellung</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The program could not be ended.</source>
        <translation>Das Programm konnte nicht beendet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>NOT KEPT: %1</source>
        <translation>NICHT GESICHERT: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The estimate could not be opened.</source>
        <translation>Die Berechnung konnte nicht geöffnet werden.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/tools/DataCommands.cpp"/>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>%n room</source>
        <comment>%n rooms</comment>
        <translation>
            <numerusform>%n Raum</numerusform>
            <numerusform>%n Räume</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Above least %</source>
        <translation>Über Minimum %</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Comparison of rolls and lays</source>
        <translation>Vergleich der Rollen und Verlegungen</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Every roll and lay is refused</source>
        <translation>Jede Rolle und Verlegung ist abgelehnt</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Take</source>
        <translation>Wahl</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>best</source>
        <translation>am besten</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;CARPET</source>
        <translation>TE&amp;PPICH</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;JOIN ROOMS NO WIDER THAN THE ROLL</source>
        <translation>RÄUME &amp;BIS ROLLENBREITE STÜCKELN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;PARTS AT MOST</source>
        <translation>MA&amp;X. TEILE</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;ROLLS</source>
        <translation>&amp;ROLLEN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>Across is the distance to the next column of the pattern. With a half drop, which sets it half a repeat further along, that is half the repeat of makers who name the whole design.</source>
        <translation>Quer ist der Abstand zur nächsten Musterspalte. Bei halbem Versatz, der sie längs einen halben Rapport weiter setzt, ist das die Hälfte des Rapports von Herstellern, die das ganze Muster nennen.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>DRIFT %</source>
        <translation>VERZUG %</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>HAL&amp;F DROP</source>
        <translation>HALBER &amp;VERSATZ</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>Order choices</source>
        <translation>Auswahl für die Bestellung</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>PATT&amp;ERN ALONG</source>
        <translation>RAPPORT LÄ&amp;NGS</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>PATTER&amp;N ACROSS</source>
        <translation>RAPP&amp;ORT QUER</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>REMO&amp;VE ROLL</source>
        <translation>ROLLE &amp;ENTFERNEN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>S&amp;HORTEST PART</source>
        <translation>KÜRZESTES TE&amp;IL</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>SECONDS</source>
        <translation>SEKUNDEN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>SELVA&amp;GE</source>
        <translation>&amp;WEBKANTE</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>STEP</source>
        <translation>STUFE</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>TRIM &amp;ALONG</source>
        <translation>ZUGABE &amp;LÄNGS</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>TRIM ACR&amp;OSS</source>
        <translation>Z&amp;UGABE QUER</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderOutput.cpp"/>
        <source>Save as &amp;JSON</source>
        <translation>Als &amp;JSON speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderOutput.cpp"/>
        <source>Save as &amp;text</source>
        <translation>Als &amp;Text speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>&amp;SAVE AS</source>
        <translation>SPEICHERN &amp;ALS</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>CHOICES</source>
        <translation>AUSWAHL</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>CO&amp;MPARE</source>
        <translation>VER&amp;GLEICHEN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>COMPARISON</source>
        <translation>VERGLEICH</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Compared.</source>
        <translation>Verglichen.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Comparing. STOP keeps the best so far.</source>
        <translation>Vergleich läuft. STOPP behält das bisher Beste.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Every roll and lay is refused: the notes say why.</source>
        <translation>Jede Rolle und Verlegung ist abgelehnt: Die Hinweise sagen, warum.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>ORDER FOR PROJECT: %1</source>
        <translation>BESTELLUNG FÜR PROJEKT: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>OUT OF DATE: the choices have changed. Press COMPARE.</source>
        <translation>ÜBERHOLT: Die Auswahl hat sich geändert. VERGLEICHEN drücken.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Parts of the screen</source>
        <translation>Teile der Seite</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>S&amp;TOP</source>
        <translation>&amp;STOPP</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Stopped: the best so far.</source>
        <translation>Gestoppt: das bisher Beste.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The choices could not be taken.</source>
        <translation>Die Auswahl konnte nicht übernommen werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The order could not be made.</source>
        <translation>Die Bestellung konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The order could not be saved.</source>
        <translation>Die Bestellung konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The request that is kept for this carpet is in feet and inches and is not used. What you change takes its place.</source>
        <translation>Die gespeicherte Vorgabe für diesen Teppichboden ist in Fuß und Zoll und wird nicht verwendet. Was Sie ändern, tritt an ihre Stelle.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The request that is kept for this carpet is in metric and is not used. What you change takes its place.</source>
        <translation>Die gespeicherte Vorgabe für diesen Teppichboden ist metrisch und wird nicht verwendet. Was Sie ändern, tritt an ihre Stelle.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Price per
sq. m</source>
        <translation>Preis je
m²</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Price per
sq. yd</source>
        <translation>Preis je
yd²</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>Please select a month or a directory.</source>
        <translation>Bitte wählen Sie einen Monat oder ein Verzeichnis.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>The Project Name: %1 has been used<byte value="xd"/>
Please change to another name!</source>
        <translation>Der Projektname %1 ist schon vergeben<byte value="xd"/>
Bitte wählen Sie einen anderen Namen!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>The project is no longer there. Please select it again!</source>
        <translation>Das Projekt ist nicht mehr da. Bitte wählen Sie es noch einmal!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source> CURRENT SETTING</source>
        <translation> AKTUELLE AUSWAHL</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;DIRECTORIES</source>
        <translation>&amp;VERZEICHNISSE</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;EXIT</source>
        <translation>SCHLI&amp;ESSEN</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;MONTHS</source>
        <translation>&amp;MONATE</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;NEW PROJECT</source>
        <translation>&amp;NEUES PROJEKT</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;PROJECTS</source>
        <translation>&amp;PROJEKTE</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;SELECT PROJECT</source>
        <translation>PROJEKT &amp;WÄHLEN</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>D&amp;ONE</source>
        <translation>&amp;FERTIG</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>DIRECTORY:%1</source>
        <translation>VERZEICHNIS: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>E&amp;XIT</source>
        <translation>&amp;BEENDEN</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>NEW DIRECTOR&amp;Y</source>
        <translation>NEUES VERZEI&amp;CHNIS</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>No Project Selected</source>
        <translation>Kein Projekt gewählt</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>PROJECT</source>
        <translation>PROJEKT</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>PROJECT:%1</source>
        <translation>PROJEKT: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>*PROJECT SELECTION*</source>
        <translation>*PROJEKTAUSWAHL*</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Are you sure to delete this project?<byte value="xd"/>
Delete operation will make the data of the project lost!</source>
        <translation>Soll dieses Projekt wirklich gelöscht werden?<byte value="xd"/>
Beim Löschen gehen die Daten des Projekts verloren!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new directory name</source>
        <translation>Name des neuen Verzeichnisses</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new name you want to change to:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new project name you want to change to:</source>
        <translation>Neuer Name des Projekts:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be deleted.</source>
        <translation>Das Verzeichnis konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be made.</source>
        <translation>Das Verzeichnis konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be renamed.</source>
        <translation>Das Verzeichnis konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be deleted.</source>
        <translation>Das Projekt konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be renamed.</source>
        <translation>Das Projekt konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be selected.</source>
        <translation>Das Projekt konnte nicht gewählt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The projects could not be listed.</source>
        <translation>Die Projekte konnten nicht aufgelistet werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Warning: Delete directory will make data under this directory lost!<byte value="xd"/>
Do you want to continue deleting?</source>
        <translation>Warnung: Beim Löschen des Verzeichnisses gehen die Daten darin verloren!<byte value="xd"/>
Wollen Sie wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Feet and inches</source>
        <translation>Fuß und Zoll</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Name of the project:</source>
        <translation>Name des Projekts:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>No project is made of %1.</source>
        <translation>Aus %1 wird kein Projekt.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>The project could not be made.</source>
        <translation>Das Projekt konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>The rooms of %1 become a new project.<byte value="xd"/>
What are their sizes in?</source>
        <translation>Die Räume aus %1 werden ein neues Projekt.<byte value="xd"/>
Worin sind ihre Maße angegeben?</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>There is no room in it.</source>
        <translation>Darin ist kein Raum.</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1, %2 by %3, %4, from %5 to %6</source>
        <translation>%1, %2 mal %3, %4, von %5 bis %6</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1: %2  %3  %4 to %5</source>
        <translation>%1: %2  %3  %4 bis %5</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1: %2  %3  %4 to %5, across %6</source>
        <translation>%1: %2  %3  %4 bis %5, quer %6</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>Roll %1 wide, %2 long, %n piece</source>
        <comment>Roll %1 wide, %2 long, %n pieces</comment>
        <translation>
            <numerusform>Rolle %1 breit, %2 lang, %n Stück</numerusform>
            <numerusform>Rolle %1 breit, %2 lang, %n Stücke</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollList.cpp"/>
        <source>Cut list</source>
        <translation>Zuschnittliste</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollView.cpp"/>
        <source>The roll could not be shown.</source>
        <translation>Die Rolle konnte nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollView.cpp"/>
        <source>Whole roll</source>
        <translation>Ganze Rolle</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;DELETE </source>
        <translation>LÖS&amp;CHEN </translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;NEXT ROOM</source>
        <translation>&amp;NÄCHSTER RAUM</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;PREVIOUS ROOM</source>
        <translation>&amp;VORIGER RAUM</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;REPORT</source>
        <translation>BER&amp;ICHT</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>B&amp;ASE</source>
        <translation>S&amp;OCKEL</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>CARPE&amp;T TYPE</source>
        <translation>BEL&amp;AG</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>CM</source>
        <translation>CM</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>CMS</source>
        <translation>CM</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>EXAMPLE: W2L1</source>
        <translation>BEISPIEL: W2L1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>FEET</source>
        <translation>FUSS</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ITEM INFO</source>
        <translation>ANGABEN</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ME&amp;TER</source>
        <translation>&amp;METER</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>PROJECT ITEM No.</source>
        <translation>POSITION IM PROJEKT</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>PROJECT: %1</source>
        <translation>PROJEKT: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>REMAR&amp;K</source>
        <translation>BE&amp;MERKUNG</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>RO&amp;OM No.</source>
        <translation>RA&amp;UM-NR.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM   &amp;WIDTH</source>
        <translation>RAUMBREIT&amp;E</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM &amp;LENGTH</source>
        <translation>RAUM&amp;LÄNGE</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM SIZE</source>
        <translation>RAUMMASSE</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>The text could not be tested.</source>
        <translation>Der Text konnte nicht geprüft werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomOutput.cpp"/>
        <source>Save as CS&amp;V</source>
        <translation>Als CS&amp;V speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>paste %n room</source>
        <comment>paste %n rooms</comment>
        <translation>
            <numerusform>%n Raum einfügen</numerusform>
            <numerusform>%n Räume einfügen</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>there is no room below the headings</source>
        <translation>Unter den Überschriften steht kein Raum</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>&amp;Paste rooms</source>
        <translation>Räume &amp;einfügen</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>The rooms are pasted. Some sizes are rounded:</source>
        <translation>Die Räume sind eingefügt. Einige Maße sind gerundet:</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>The rooms could not be pasted: nothing was changed.</source>
        <translation>Die Räume konnten nicht eingefügt werden: Nichts wurde geändert.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>*EDIT DATA*</source>
        <translation>*DATEN BEARBEITEN*</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>DRAWING</source>
        <translation>ZEICHNUNG</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Really want to delete current data?</source>
        <translation>Sollen die aktuellen Daten wirklich gelöscht werden?</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Room %1 is not stored: it needs a width and a length.</source>
        <translation>Raum %1 ist nicht gespeichert: Er braucht eine Breite und eine Länge.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>S&amp;HOW FORM</source>
        <translation>FORMULAR ZEI&amp;GEN</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>S&amp;HOW LIST</source>
        <translation>LISTE ZEI&amp;GEN</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The list of the rooms could not be saved.</source>
        <translation>Die Liste der Räume konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be closed.</source>
        <translation>Der Bericht konnte nicht geschlossen werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be made.</source>
        <translation>Der Bericht konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be printed.</source>
        <translation>Der Bericht konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be saved.</source>
        <translation>Der Bericht konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The room could not be deleted.</source>
        <translation>Der Raum konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The room could not be stored.</source>
        <translation>Der Raum konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be pasted.</source>
        <translation>Die Räume konnten nicht eingefügt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be put back.</source>
        <translation>Die Räume konnten nicht zurückgesetzt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be shown.</source>
        <translation>Die Räume konnten nicht gezeigt werden.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Then click where the cut list is to stand, or press Enter for the top left of the view.</source>
        <translation>Klicken Sie dann dorthin, wo die Zuschnittliste stehen soll, oder drücken Sie die Eingabetaste für oben links im sichtbaren Ausschnitt.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>There is no data to estimate. Please fill in the room information before estimating.</source>
        <translation>Es gibt nichts zu berechnen. Bitte geben Sie vorher die Räume ein.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Typed before for a new room, and not stored. DELETE empties the fields.</source>
        <translation>Früher für einen neuen Raum getippt und nicht gespeichert. LÖSCHEN leert die Felder.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>ROLL</source>
        <translation>ROLLE</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomTotals.cpp"/>
        <source>TOTALS BY COVERING</source>
        <translation>SUMMEN NACH BELAG</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 cannot be copied</source>
        <translation>Die Sicherung %1 kann nicht kopiert werden</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 cannot be read</source>
        <translation>Die Sicherung %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 is damaged (%2) and is not put in place. Take another one.</source>
        <translation>Die Sicherung %1 ist beschädigt (%2) und wird nicht eingesetzt. Nehmen Sie eine andere.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The database file %1 cannot be replaced: another program is using the database. Close that program and try again.</source>
        <translation>Die Datenbankdatei %1 kann nicht ersetzt werden: Ein anderes Programm benutzt die Datenbank. Schließen Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 cannot be kept as %2: %3.</source>
        <translation>Die Datei %1 kann nicht als %2 aufbewahrt werden: %3.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 is no backup of this program&apos;s data: it has no table %2.</source>
        <translation>Die Datei %1 ist keine Sicherung der Daten dieses Programms: Ihr fehlt die Tabelle %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 is the database itself. Name a backup of it.</source>
        <translation>Die Datei %1 ist die Datenbank selbst. Nennen Sie eine Sicherung von ihr.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The journal %1 cannot be set aside as %2.</source>
        <translation>Das Journal %1 kann nicht als %2 beiseitegelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <location filename="../src/store/RawRows.cpp"/>
        <source>The file cannot be read</source>
        <translation>Die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 in %2 %3</source>
        <translation>%1 in %2 %3</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 of %2 and %3</source>
        <translation>%1 von %2 und %3</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 under the number %2</source>
        <translation>%1 unter der Nummer %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1, all %2</source>
        <translation>%1, alle %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>A change was cut off by a crash: %1 lies beside the file. The next program that opens the file takes that change back.</source>
        <translation>Ein Absturz hat eine Änderung abgebrochen: %1 liegt neben der Datei. Das nächste Programm, das die Datei öffnet, nimmt diese Änderung zurück.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Carpets with more than one request for an order, of which the last is read</source>
        <translation>Teppichböden mit mehreren Bestellvorgaben, von denen die letzte gelesen wird</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Damaged: %1</source>
        <translation>Beschädigt: %1</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Directories with more than one row</source>
        <translation>Verzeichnisse mit mehr als einer Zeile</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Fields without their index, by which reading becomes slow</source>
        <translation>Felder ohne ihren Index, wodurch das Lesen langsam wird</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>In the place of the table %1 is a view, which stores nothing.</source>
        <translation>Statt der Tabelle %1 steht dort eine Sicht, die nichts speichert.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>In the place of the table %1 is one without row numbers.</source>
        <translation>Statt der Tabelle %1 steht dort eine ohne Zeilennummern.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Indexes of another program that refuse a value which is there already</source>
        <translation>Indizes eines anderen Programms, die einen schon vorhandenen Wert ablehnen</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects that no screen shows, since their directory is neither listed nor a month</source>
        <translation>Projekte, die keine Seite zeigt, weil ihr Verzeichnis weder aufgeführt noch ein Monat ist</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects with more than one row</source>
        <translation>Projekte mit mehr als einer Zeile</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects with more than one sheet, of which the first alone is used</source>
        <translation>Projekte mit mehreren Blättern, von denen nur das erste gilt</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Requests for orders that cannot be read</source>
        <translation>Bestellvorgaben, die nicht lesbar sind</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms beyond the number that the sheet tells, which nothing shows</source>
        <translation>Räume über die Zahl des Blatts hinaus, die nirgends gezeigt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms with more than one row, of which the last is read</source>
        <translation>Räume mit mehreren Zeilen, von denen die letzte gelesen wird</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms without a row, which are read as empty</source>
        <translation>Räume ohne Zeile, die als leer gelesen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms without a sheet, which nothing shows</source>
        <translation>Räume ohne Blatt, die nirgends gezeigt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rows of %1 without a sheet, which nothing reaches</source>
        <translation>Zeilen von %1 ohne Blatt, die nicht erreichbar sind</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Sheet numbers of more than one project, whose rooms cannot be told apart</source>
        <translation>Blattnummern mehrerer Projekte, deren Räume nicht zu unterscheiden sind</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Sheets without a project</source>
        <translation>Blätter ohne Projekt</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The database file %1 cannot be checked</source>
        <translation>Die Datenbankdatei %1 kann nicht geprüft werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 cannot be checked</source>
        <translation>Die Tabelle %1 kann nicht geprüft werden</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 has no field %2.</source>
        <translation>Die Tabelle %1 hat kein Feld %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 is missing.</source>
        <translation>Die Tabelle %1 fehlt.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Triggers of another program, which may change or refuse what is stored</source>
        <translation>Trigger eines anderen Programms, die Gespeichertes ändern oder ablehnen können</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>number %1 of no name</source>
        <translation>Nummer %1 ohne Namen</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>Cannot write %1: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>it is there already</source>
        <translation>Die Datei ist schon da</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>the folder &quot;%1&quot; cannot be named in it</source>
        <translation>Der Ordner „%1“ kann darin nicht genannt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database file is damaged (%1). %2</source>
        <translation>Die Datenbankdatei ist beschädigt (%1). %2</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database file was moved, deleted or replaced while it was open. Put it back, or start the program again.</source>
        <translation>Die Datenbankdatei wurde verschoben, gelöscht oder ersetzt, während sie geöffnet war. Legen Sie sie zurück, oder starten Sie das Programm neu.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database is read-only. Allow writing to the file and to its folder.</source>
        <translation>Die Datenbank ist schreibgeschützt. Erlauben Sie das Schreiben in die Datei und in ihren Ordner.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk does not confirm that it keeps the change, which may be there all the same. Look whether it is.</source>
        <translation>Der Datenträger bestätigt nicht, dass er die Änderung behält; sie kann trotzdem da sein. Sehen Sie nach.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk is full. Free some space and try again.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk reports an error (%1).</source>
        <translation>Der Datenträger meldet einen Fehler (%1).</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <location filename="../src/store/FileLock.cpp"/>
        <source>another program is using the database. Close that program and try again.</source>
        <translation>Ein anderes Programm benutzt die Datenbank. Schließen Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/store/DataFolder.cpp"/>
        <source> No data folder is named in %1.</source>
        <translation> In %1 ist kein Datenordner genannt.</translation>
    </message>
    <message>
        <location filename="../src/store/DataFolder.h"/>
        <source>Couldn&apos;t find TarnWin.ini</source>
        <translation>TarnWin.ini nicht gefunden</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 cannot be read: %2.</source>
        <translation>Die Datenbankdatei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is a folder. Correct its path or the data folder in %2.</source>
        <translation>Die Datenbankdatei %1 ist ein Ordner. Berichtigen Sie ihren Pfad oder den Datenordner in %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is a pipe, a device or a socket. Correct its path or the data folder in %2.</source>
        <translation>Die Datenbankdatei %1 ist eine Pipe, ein Gerät oder ein Socket. Berichtigen Sie ihren Pfad oder den Datenordner in %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is damaged (%2). %3</source>
        <translation>Die Datenbankdatei %1 ist beschädigt (%2). %3</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is empty. %2</source>
        <translation>Die Datenbankdatei %1 ist leer. %2</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is in the older Jet format, which cannot be read. Keep it, make a new data folder with &quot;tarn-data create&quot; and enter its projects there.</source>
        <translation>Die Datenbankdatei %1 hat das ältere Jet-Format, das nicht gelesen werden kann. Behalten Sie sie, legen Sie mit „tarn-data create“ einen neuen Datenordner an und geben Sie ihre Projekte dort ein.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is missing. Correct its path or the data folder in %2, or make a new data folder with &quot;tarn-data create&quot;.</source>
        <translation>Die Datenbankdatei %1 fehlt. Berichtigen Sie ihren Pfad oder den Datenordner in %2, oder legen Sie mit „tarn-data create“ einen neuen Datenordner an.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is not a database of this program. Correct its path or the data folder in %2, or put a backup in its place with &quot;tarn-data restore&quot;.</source>
        <translation>Die Datenbankdatei %1 ist keine Datenbank dieses Programms. Berichtigen Sie ihren Pfad oder den Datenordner in %2, oder setzen Sie mit „tarn-data restore“ eine Sicherung an ihre Stelle.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is read-only. Allow writing to it.</source>
        <translation>Die Datenbankdatei %1 ist schreibgeschützt. Erlauben Sie das Schreiben.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 lies in a read-only folder. Allow writing to the folder.</source>
        <translation>Die Datenbankdatei %1 liegt in einem schreibgeschützten Ordner. Erlauben Sie das Schreiben in den Ordner.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>a part of it is missing</source>
        <translation>ein Teil von ihr fehlt</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <location filename="../src/store/Connection.cpp"/>
        <source>The database file %1 cannot be opened</source>
        <translation>Die Datenbankdatei %1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <source>The folder %1 cannot be written: %2.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <source>There is no folder for it: the environment names no home.</source>
        <translation>Dafür gibt es keinen Ordner: Die Umgebung nennt kein Benutzerverzeichnis.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 cannot be written: %2.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.h"/>
        <source>There is no folder for drafts.</source>
        <translation>Es gibt keinen Ordner für Entwürfe.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>%1 The new file may be there all the same.</source>
        <translation>%1 Die neue Datei kann trotzdem da sein.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>The file %1 cannot be made: %2.</source>
        <translation>Die Datei %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>The file %1 cannot be made: it has no name.</source>
        <translation>Die Datei %1 kann nicht angelegt werden: Sie hat keinen Namen.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>it cannot be moved into its folder, or another program made it meanwhile</source>
        <translation>Sie kann nicht in ihren Ordner verschoben werden, oder ein anderes Programm hat sie inzwischen angelegt</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>it is there already and stays as it is</source>
        <translation>Sie ist schon da und bleibt, wie sie ist</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>its folder cannot be made</source>
        <translation>Ihr Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>its folder takes no files</source>
        <translation>Ihr Ordner nimmt keine Dateien auf</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>something that is no file stands in its place</source>
        <translation>An ihrer Stelle steht etwas, das keine Datei ist</translation>
    </message>
    <message>
        <location filename="../src/store/FileLock.cpp"/>
        <source>The database file %1 cannot be locked: %2</source>
        <translation>Die Datenbankdatei %1 kann nicht gesperrt werden: %2</translation>
    </message>
    <message>
        <location filename="../src/store/Findings.cpp"/>
        <source>%1: %2 more.</source>
        <translation>%1: %2 weitere.</translation>
    </message>
    <message>
        <location filename="../src/store/Findings.cpp"/>
        <source>%1; and %2 more</source>
        <translation>%1; und %2 weitere</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>Make a folder for the program&apos;s data?<byte value="xd"/>
<byte value="xd"/>
Data folder: %1<byte value="xd"/>
It is named in a new file: %2<byte value="xd"/>
<byte value="xd"/>
With No nothing is made, and the program ends.</source>
        <translation>Einen Ordner für die Daten des Programms anlegen?<byte value="xd"/>
<byte value="xd"/>
Datenordner: %1<byte value="xd"/>
Er wird in einer neuen Datei genannt: %2<byte value="xd"/>
<byte value="xd"/>
Bei Nein wird nichts angelegt, und das Programm endet.</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>The folder %1 cannot be made: %2.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>Use the data that is in this folder already?<byte value="xd"/>
<byte value="xd"/>
Data folder: %1<byte value="xd"/>
It is named in a new file: %2<byte value="xd"/>
<byte value="xd"/>
With No nothing is made, and the program ends.</source>
        <translation>Die Daten verwenden, die schon in diesem Ordner sind?<byte value="xd"/>
<byte value="xd"/>
Datenordner: %1<byte value="xd"/>
Er wird in einer neuen Datei genannt: %2<byte value="xd"/>
<byte value="xd"/>
Bei Nein wird nichts angelegt, und das Programm endet.</translation>
    </message>
    <message>
        <location filename="../src/store/Journal.cpp"/>
        <source>The database file %1 cannot be opened: %2 is no file. Remove it.</source>
        <translation>Die Datenbankdatei %1 kann nicht geöffnet werden: %2 ist keine Datei. Entfernen Sie das.</translation>
    </message>
    <message>
        <location filename="../src/store/Journal.cpp"/>
        <source>The database file %1 is not opened: beside it lies %2, the journal of a change that was cut off, and it belongs to another state of the file, as when a backup was copied over the file. Together they would give wrong rooms; nothing was changed. Put a backup in place with &quot;tarn-data restore BACKUP --database %1&quot;, which sets the journal aside.</source>
        <translation>Die Datenbankdatei %1 wird nicht geöffnet: Neben ihr liegt %2, das Journal einer abgebrochenen Änderung, und es gehört zu einem anderen Stand der Datei, etwa weil eine Sicherung über die Datei kopiert wurde. Zusammen ergäben sie falsche Räume; nichts wurde geändert. Setzen Sie mit „tarn-data restore BACKUP --database %1“ eine Sicherung ein; das legt das Journal beiseite.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory name %1 has more than %2 characters.</source>
        <translation>Der Verzeichnisname %1 hat mehr als %2 Zeichen.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory name holds a line break or another control character.</source>
        <translation>Der Verzeichnisname enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory needs a name.</source>
        <translation>Das Verzeichnis braucht einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project name %1 has more than %2 characters.</source>
        <translation>Der Projektname %1 hat mehr als %2 Zeichen.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project name holds a line break or another control character.</source>
        <translation>Der Projektname enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project needs a name.</source>
        <translation>Das Projekt braucht einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/store/OrderRows.cpp"/>
        <source>Requests for orders that cannot be read, left out and dropped by SAVE: carpet %1.</source>
        <translation>Bestellvorgaben, die nicht lesbar sind, ausgelassen und beim SPEICHERN entfernt: Teppichboden %1.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.cpp"/>
        <source>There is one directory with the same name, change to other one!</source>
        <translation>Es gibt schon ein Verzeichnis dieses Namens, bitte wählen Sie einen anderen!</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.cpp"/>
        <source>There is one project with the same name, change to other one!</source>
        <translation>Es gibt schon ein Projekt dieses Namens, bitte wählen Sie einen anderen!</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.h"/>
        <source>Sorry, the project name couldn&apos;t contain any of following characters:<byte value="xd"/>
   \/:*?&quot;&lt;&gt;|</source>
        <translation>Der Projektname darf keines dieser Zeichen enthalten:<byte value="xd"/>
   \/:*?&quot;&lt;&gt;|</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>No database is open.</source>
        <translation>Keine Datenbank ist geöffnet.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The change cannot be stored</source>
        <translation>Die Änderung kann nicht gespeichert werden</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The change cannot be taken back</source>
        <translation>Die Änderung kann nicht zurückgenommen werden</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The database takes no change</source>
        <translation>Die Datenbank nimmt keine Änderung an</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The name %1 cannot be used: a double quote stands inside it.</source>
        <translation>Der Name %1 kann nicht verwendet werden: Er enthält ein doppeltes Anführungszeichen.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The project name %1 holds one of the characters %2.</source>
        <translation>Der Projektname %1 enthält eines der Zeichen %2.</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>has more than %1 characters</source>
        <translation>hat mehr als %1 Zeichen</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>holds a character that no name may</source>
        <translation>enthält ein Zeichen, das in keinem Namen stehen darf</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>holds what no text may: a control character, U+FFFE, U+FFFF, or bytes that are not UTF-8</source>
        <translation>enthält, was in keinem Text stehen darf: ein Steuerzeichen, U+FFFE, U+FFFF oder Bytes, die kein UTF-8 sind</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no number above 0</source>
        <translation>ist keine Zahl über 0</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no text</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no whole number from %1 to %2</source>
        <translation>ist keine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is not as names are stored: in upper case, without blanks at its ends</source>
        <translation>ist nicht so, wie Namen gespeichert werden: in Großbuchstaben, ohne Leerzeichen an den Enden</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <location filename="../src/store/Remedies.h"/>
        <source>Put a backup in its place with &quot;tarn-data restore&quot;, or save what can still be read of it with &quot;tarn-data repair&quot;.</source>
        <translation>Setzen Sie mit „tarn-data restore“ eine Sicherung an ihre Stelle, oder retten Sie mit „tarn-data repair“, was noch lesbar ist.</translation>
    </message>
    <message>
        <location filename="../src/store/Remedies.h"/>
        <source>Put a backup in its place with &quot;tarn-data restore&quot;.</source>
        <translation>Setzen Sie mit „tarn-data restore“ eine Sicherung an ihre Stelle.</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, behind row %2</source>
        <translation>%1, nach Zeile %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, from the first row on</source>
        <translation>%1, von der ersten Zeile an</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, row %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>A change that a crash cut off is taken back.</source>
        <translation>Eine Änderung, die ein Absturz abgebrochen hat, wird zurückgenommen.</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Fields that were missing</source>
        <translation>Felder, die fehlten</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Nothing can be read of the database file %1. %2</source>
        <translation>Von der Datenbankdatei %1 ist nichts lesbar. %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Requests for an order that a later one of the carpet replaced, left out</source>
        <translation>Bestellvorgaben, die eine spätere desselben Teppichbodens ersetzt hat, ausgelassen</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Requests for orders that cannot be read, left out</source>
        <translation>Bestellvorgaben, die nicht lesbar sind, ausgelassen</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Rows of sheets that are not there, left out</source>
        <translation>Zeilen von Blättern, die es nicht gibt, ausgelassen</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Rows that cannot be read and are left out</source>
        <translation>Zeilen, die nicht lesbar sind und ausgelassen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Tables that cannot be read</source>
        <translation>Tabellen, die nicht lesbar sind</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Tables that were missing and are empty now</source>
        <translation>Tabellen, die fehlten und jetzt leer sind</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The database file cannot be read</source>
        <translation>Die Datenbankdatei kann nicht gelesen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The file %1 cannot be made</source>
        <translation>Die Datei %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The file %1 cannot be made: it would not be sound. %2</source>
        <translation>Die Datei %1 kann nicht angelegt werden: Sie wäre nicht einwandfrei. %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The journal beside the file belongs to another state of it and is not used.</source>
        <translation>Das Journal neben der Datei gehört zu einem anderen Stand von ihr und wird nicht verwendet.</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The tables cannot be listed</source>
        <translation>Die Tabellen können nicht aufgelistet werden</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>What another program put there, left out</source>
        <translation>Was ein anderes Programm dort ablegte, ausgelassen</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>field %1 of %2</source>
        <translation>Feld %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 takes no new row</source>
        <translation>%1 nimmt keine neue Zeile auf</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1 became &quot;%2&quot;</source>
        <translation>%1 wurde zu „%2“</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, now %2 in %3</source>
        <translation>%1, jetzt %2 in %3</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, row %2 (%3)</source>
        <translation>%1, Zeile %2 (%3)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, row %2 (%3, a second time)</source>
        <translation>%1, Zeile %2 (%3, ein zweites Mal)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1: %2 %3 became %4</source>
        <translation>%1: %2 %3 wurde zu %4</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Directories that were made for projects which no screen showed</source>
        <translation>Verzeichnisse, die für Projekte angelegt wurden, die keine Seite zeigte</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Names that were changed</source>
        <translation>Namen, die geändert wurden</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Projects for which no number was left, without their rooms</source>
        <translation>Projekte, für die keine Nummer mehr frei war, ohne ihre Räume</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Projects that shared their rooms with others, and have them all now</source>
        <translation>Projekte, die ihre Räume mit anderen teilten und jetzt alle haben</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that could not be found and are empty now</source>
        <translation>Räume, die nicht gefunden wurden und jetzt leer sind</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that their project did not show, which are in one of their own now</source>
        <translation>Räume, die ihr Projekt nicht zeigte und die jetzt in einem eigenen stehen</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that were stored twice alike</source>
        <translation>Räume, die zweimal gleich gespeichert waren</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms without a sheet, for which a project was made (in feet and inches: their units are not known)</source>
        <translation>Räume ohne Blatt, für die ein Projekt angelegt wurde (in Fuß und Zoll: ihre Einheiten sind nicht bekannt)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rows that say nothing and were left out</source>
        <translation>Zeilen, die nichts sagen und ausgelassen wurden</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Second sheets of a project, which became projects of their own</source>
        <translation>Zweite Blätter eines Projekts, die eigene Projekte wurden</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Sheets without a project, for which one was made</source>
        <translation>Blätter ohne Projekt, für die eines angelegt wurde</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Sheets without rooms that were left out</source>
        <translation>Blätter ohne Räume, die ausgelassen wurden</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Values that were changed</source>
        <translation>Werte, die geändert wurden</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>%1, room %2</source>
        <translation>%1, Raum %2</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>number %1 of %2</source>
        <translation>Nummer %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1  (at %2, %3 across)</source>
        <translation>%1  (bei %2, %3 quer)</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is a whole length: empty the field beside it</source>
        <translation>%1 ist eine ganze Länge: Leeren Sie das Feld daneben</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is not taken: type it like 3.66, 3.66m or 366cm</source>
        <translation>%1 ist nicht lesbar: eingeben wie 3.66, 3.66m oder 366cm</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is not taken: type it like 6.5, 6 1/2&quot; or 12&apos;6&quot;</source>
        <translation>%1 ist nicht lesbar: eingeben wie 6.5, 6 1/2&quot; oder 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>A comma is not taken: type %1</source>
        <translation>Ein Komma gilt nicht: %1 eingeben</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>A number stored in the room row with ObjNum %1 is too large.</source>
        <translation>Eine Zahl in der Raumzeile mit ObjNum %1 ist zu groß.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Beyond the end of the project, dropped by SAVE</source>
        <translation>Hinter dem Ende des Projekts, beim SPEICHERN entfernt</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Kept as %1 (typed %2)</source>
        <translation>Gespeichert als %1 (eingegeben %2)</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Letters are not taken</source>
        <translation>Buchstaben gelten nicht</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Missing, read as empty</source>
        <translation>Fehlend, als leer gelesen</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only a number is taken</source>
        <translation>Nur eine Zahl gilt</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only feet and inches are taken here: type it like 12&apos;6&quot;</source>
        <translation>Hier gelten nur Fuß und Zoll: eingeben wie 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only metres and centimetres are taken here: type it like 3.66m</source>
        <translation>Hier gelten nur Meter und Zentimeter: eingeben wie 3.66m</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Outside rooms 1 to %1, left out and dropped by SAVE: ObjNum %2.</source>
        <translation>Außerhalb der Räume 1 bis %1, ausgelassen und beim SPEICHERN entfernt: ObjNum %2.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Room %1 has no width or no length: it is stored with 0, and nothing is cut for it.</source>
        <translation>Raum %1 hat keine Breite oder keine Länge: Er wird mit 0 gespeichert, und für ihn wird nichts zugeschnitten.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Rooms %1 have no width or no length: they are stored with 0, and nothing is cut for them.</source>
        <translation>Die Räume %1 haben keine Breite oder keine Länge: Sie werden mit 0 gespeichert, und für sie wird nichts zugeschnitten.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Stored more than once, the last row is used</source>
        <translation>Mehrmals gespeichert, die letzte Zeile gilt</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Stored under one number with %1, whose rooms they may be</source>
        <translation>Unter einer gemeinsamen Nummer mit %1 gespeichert; die Räume können dorthin gehören</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>The length is empty and counts as 0.</source>
        <translation>Die Länge ist leer und zählt als 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>The width is empty and counts as 0.</source>
        <translation>Die Breite ist leer und zählt als 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Width and length are empty and count as 0.</source>
        <translation>Breite und Länge sind leer und zählen als 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>With an unknown covering, not estimated until one is chosen</source>
        <translation>Mit unbekanntem Belag, nicht berechnet, bis einer gewählt wird</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>With an unknown wall base, shown as none</source>
        <translation>Mit unbekanntem Sockel, ohne Sockel gezeigt</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a covering, read as %1</source>
        <translation>Ohne Belag, gelesen als %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a room number, read as</source>
        <translation>Ohne Raumnummer, gelesen als</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a wall base, read as none</source>
        <translation>Ohne Sockelangabe, als ohne Sockel gelesen</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a width or a length, read as 0</source>
        <translation>Ohne Breite oder Länge, gelesen als 0</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>rooms %1</source>
        <translation>Räume %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>the project %1</source>
        <translation>dem Projekt %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>the projects %1</source>
        <translation>den Projekten %1</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The backup %1 cannot be made</source>
        <translation>Die Sicherung %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The database file %1 cannot be made</source>
        <translation>Die Datenbankdatei %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The table %1 cannot be made</source>
        <translation>Die Tabelle %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>%1 cannot be deleted from: it is a view and no table.</source>
        <translation>Aus %1 kann nicht gelöscht werden: Es ist eine Sicht und keine Tabelle.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>A project&apos;s sheet has no number; its data cannot be deleted.</source>
        <translation>Ein Blatt des Projekts hat keine Nummer; seine Daten können nicht gelöscht werden.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>No sheet number is left: the greatest one, 32767, is in use.</source>
        <translation>Keine Blattnummer ist mehr frei: Die größte, 32767, ist vergeben.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>Stored with more than one sheet, the first, number %1, is used; not reached: %2.</source>
        <translation>Mit mehr als einem Blatt gespeichert, das erste, Nummer %1, gilt; nicht erreicht: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The project&apos;s sheet has no value in its field %1.</source>
        <translation>Das Blatt des Projekts hat keinen Wert im Feld %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The project&apos;s sheet holds a wrong value in its field %1.</source>
        <translation>Das Blatt des Projekts hat einen falschen Wert im Feld %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The sheet of the project %1 has the number %2; %3</source>
        <translation>Das Blatt des Projekts %1 hat die Nummer %2; %3</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>it must be a whole one.</source>
        <translation>sie muss ganzzahlig sein.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>one without a number</source>
        <translation>eines ohne Nummer</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>the greatest is %1.</source>
        <translation>die größte ist %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 cannot be changed</source>
        <translation>%1 kann nicht geändert werden</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 cannot be given the field %2</source>
        <translation>%1 kann das Feld %2 nicht bekommen</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 has no field %2.</source>
        <translation>%1 hat kein Feld %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1: the database keeps a row as it was.</source>
        <translation>%1: Die Datenbank lässt eine Zeile, wie sie war.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1: the database leaves it out.</source>
        <translation>%1: Die Datenbank lässt sie aus.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>The field %1 should hold a number and holds &quot;%2&quot;.</source>
        <translation>Das Feld %1 sollte eine Zahl enthalten und enthält „%2“.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <location filename="../src/store/Backups.cpp"/>
        <location filename="../src/store/RawRows.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.h"/>
        <source>%1 cannot be deleted from</source>
        <translation>Aus %1 kann nicht gelöscht werden</translation>
    </message>
    <message>
        <location filename="../src/store/UntouchedFile.cpp"/>
        <source>The database file %1 cannot be looked over: a copy of it cannot be made in %2: %3.</source>
        <translation>Die Datenbankdatei %1 kann nicht durchgesehen werden: In %2 kann keine Kopie von ihr angelegt werden: %3.</translation>
    </message>
    <message>
        <location filename="../src/store/UntouchedFile.cpp"/>
        <source>The database file %1 cannot be looked over: the folder for temporary files takes none.</source>
        <translation>Die Datenbankdatei %1 kann nicht durchgesehen werden: Der Ordner für temporäre Dateien nimmt keine auf.</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 excludes %2</source>
        <translation>%1 geht nicht mit %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 is required</source>
        <translation>%1 ist erforderlich</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 requires %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: %2 not in %3</source>
        <translation>%1: %2 ist keines von %3</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: %2 required %3 missing</source>
        <translation>%1: %3 fehlt (erforderlich: %2)</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: At Most %2 required but received %3</source>
        <translation>%1: höchstens %2 möglich, %3 angegeben</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: Value %2 not in range %3 to %4</source>
        <translation>%1: Der Wert %2 liegt nicht zwischen %3 und %4</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>A subcommand is required</source>
        <translation>Ein Befehl ist erforderlich</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>Could not convert: %1 = %2</source>
        <translation>Nicht lesbar: %1 = %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>Run with --help for more information.</source>
        <translation>Mehr dazu sagt --help.</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>The following argument was not expected: %1</source>
        <translation>Dieses Argument ist hier nicht möglich: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>The following arguments were not expected: %1</source>
        <translation>Diese Argumente sind hier nicht möglich: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%1, see tarn-data check</source>
        <translation>%1, siehe tarn-data check</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%1, sound</source>
        <translation>%1, einwandfrei</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%n project</source>
        <comment>%n projects</comment>
        <translation>
            <numerusform>%n Projekt</numerusform>
            <numerusform>%n Projekte</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>The database %1 has faults:</source>
        <translation>Die Datenbank %1 hat Fehler:</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>The database %1 is sound and has every table.</source>
        <translation>Die Datenbank %1 ist einwandfrei und hat jede Tabelle.</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Made %1.</source>
        <translation>%1 angelegt.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%1 CM</source>
        <translation>%1 CM</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%1 The database is made all the same. Write %2 yourself: the line %3, and in the next one its folder.</source>
        <translation>%1 Die Datenbank ist trotzdem angelegt. Schreiben Sie %2 selbst: die Zeile %3 und in die nächste ihren Ordner.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%n kilobyte</source>
        <comment>%n kilobytes</comment>
        <translation>
            <numerusform>%n Kilobyte</numerusform>
            <numerusform>%n Kilobyte</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Backups in %1, the newest first:</source>
        <translation>Sicherungen in %1, die neueste zuerst:</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>It differs from %1:</source>
        <translation>Sie unterscheidet sich von %1:</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>It holds all that %1 does.</source>
        <translation>Sie enthält alles, was %1 enthält.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Made %1, which names the folder %2.</source>
        <translation>%1 angelegt; darin ist der Ordner %2 genannt.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Name the folder to be made.</source>
        <translation>Nennen Sie den anzulegenden Ordner.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Put %1 in the place of %2.</source>
        <translation>%1 an die Stelle von %2 gesetzt.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The configuration file %1 is in force; it names no folder.</source>
        <translation>Die Konfigurationsdatei %1 gilt; sie nennt keinen Ordner.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The configuration file %1 is in force; it names the folder %2.</source>
        <translation>Die Konfigurationsdatei %1 gilt; sie nennt den Ordner %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The journal beside it is kept as %1.</source>
        <translation>Das Journal daneben wird als %1 aufbewahrt.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The project %1 cannot be exported: no import would take these rooms. Correct them in the program first; nothing was written.</source>
        <translation>Das Projekt %1 kann nicht exportiert werden: Kein Import nähme diese Räume an. Berichtigen Sie sie zuerst im Programm; nichts wurde geschrieben.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no backup %1. &quot;tarn-data backups&quot; tells the backups that there are.</source>
        <translation>Es gibt keine Sicherung %1. „tarn-data backups“ nennt die vorhandenen.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no backup in %1</source>
        <translation>In %1 gibt es keine Sicherung</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no home directory for the configuration file; name a directory with --config-dir.</source>
        <translation>Es gibt kein Benutzerverzeichnis für die Konfigurationsdatei; nennen Sie mit --config-dir ein Verzeichnis.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Warning: the project %1 was entered in metric; its sizes are listed in feet and inches. Use --metric for centimetres.</source>
        <translation>Warnung: Das Projekt %1 wurde metrisch eingegeben; seine Maße werden in Fuß und Zoll aufgelistet. Verwenden Sie --metric für Zentimeter.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Warning: the project %1 was entered in metric; its sizes are written in centimetres. Use --metric to read them.</source>
        <translation>Warnung: Das Projekt %1 wurde metrisch eingegeben; seine Maße werden in Zentimetern geschrieben. Verwenden Sie --metric, um sie zu lesen.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>What was there is kept as %1.</source>
        <translation>Was dort war, wird als %1 aufbewahrt.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>cannot be loaded: %1</source>
        <translation>kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>room %1: %2</source>
        <translation>Raum %1: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Database file</source>
        <translation>Datenbankdatei</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Make and look after the data of the estimating program.</source>
        <translation>Die Daten des Kalkulationsprogramms anlegen und pflegen.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Subcommands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>tarn-data COMMAND --help tells the options of a command.

A name has at most %1 characters, a project&apos;s none of %2

Exit status: 0 done, 1 refused or faults found (the reason is on standard error), 2 wrong usage.

Example:
  tarn-data create ~/estimates
  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project &quot;SMITH&quot; house.csv</source>
        <translation>tarn-data BEFEHL --help nennt die Optionen eines Befehls.

Ein Name hat höchstens %1 Zeichen, der eines Projekts keines von %2

Rückgabewert: 0 getan, 1 abgelehnt oder Fehler gefunden (der Grund steht in der Fehlerausgabe), 2 falscher Aufruf.

Beispiel:
  tarn-data create ~/estimates
  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project &quot;SMITH&quot; house.csv</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Name of the project</source>
        <translation>Name des Projekts</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Print this help message and exit</source>
        <translation>Diese Hilfe ausgeben und enden</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>%1 inches or more (%2 with --metric)</source>
        <translation>%1 Zoll oder mehr (%2 mit --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>A CSV file has a header line and the columns width,length,covering,base,room,remark in any
order; the first three are required. Sizes are whole inches or text such as 12&apos;6&quot; (whole
centimetres with --metric), or numbers in the unit that a heading such as &quot;Width (ft)&quot; names;
coverings CARPET-1 or C1, TILE-4 or T4. The base tells how many widths and lengths of the
room take wall base: W2L1 is two widths and one length. A size of 0 is read and not cut. A
room number has at most %1 characters, a remark %2, each in one line; of one that begins
with &apos; the &apos; is taken off. Commas, semicolons or tabs separate. A file, no pipe or device, has at
most %3 rooms and %4 MB.

An output file takes the place of the one that is there, once it is whole and stored.
Databases and symbolic links stay as they are without --force.

Exit status: 0 done, 1 refused (the reason is on standard error), 2 wrong usage.

Example:
  tarn-estimate --rooms house.csv --carpet 1 --roll-width 12ft --max-pieces 2 --svg house.svg</source>
        <translation>Eine CSV-Datei hat eine Kopfzeile und die Spalten width,length,covering,base,room,remark in
beliebiger Reihenfolge; die ersten drei sind erforderlich. Maße sind ganze Zoll oder Text wie 12&apos;6&quot;
(mit --metric ganze Zentimeter) oder Zahlen in der Einheit, die eine Überschrift wie „Width (ft)“
nennt; Beläge CARPET-1 oder C1, TILE-4 oder T4. Die Spalte base sagt, wie viele Breiten und Längen
des Raums Sockelleiste bekommen: W2L1 sind zwei Breiten und eine Länge. Ein Maß von 0 wird gelesen
und nicht zugeschnitten. Eine Raumnummer hat höchstens %1 Zeichen, eine Bemerkung %2, jede ohne
Zeilenumbruch; von einer, die mit &apos; beginnt, entfällt das &apos;. Kommas, Semikolons oder Tabulatoren
trennen. Eine Datei, keine Pipe und kein Gerät, hat höchstens %3 Räume und %4 MB.

Eine Ausgabedatei tritt an die Stelle der vorhandenen, sobald sie vollständig und gespeichert ist.
Datenbanken und symbolische Verknüpfungen bleiben ohne --force, wie sie sind.

Rückgabewert: 0 getan, 1 abgelehnt (der Grund steht in der Fehlerausgabe), 2 falscher Aufruf.

Beispiel:
  tarn-estimate --rooms house.csv --carpet 1 --roll-width 12ft --max-pieces 2 --svg house.svg</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Estimate one carpet of a project: how its rooms are cut from a roll.
The rooms come from a database (--database and --project) or from a CSV file (--rooms).</source>
        <translation>Einen Teppichboden eines Projekts berechnen: wie seine Räume aus einer Rolle geschnitten werden.
Die Räume kommen aus einer Datenbank (--database und --project) oder einer CSV-Datei (--rooms).</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>How many threads look for it (all cores, at most 8; with --improve-steps one)</source>
        <translation>Wie viele Threads danach suchen (alle Kerne, höchstens 8; mit --improve-steps einer)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Maximum number of parts into which a fill is divided, 1 to %1</source>
        <translation>Höchstzahl der Teile, in die ein Füllstück geteilt wird, 1 bis %1</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Minimum cut: %1. Despite their names these keep the parts of a divided fill at %2 or more (%3 with --metric); --improve keeps them at %4</source>
        <translation>Kürzeste Schnittlänge: %1. Trotz ihrer Namen halten diese die Teile eines geteilten Füllstücks bei %2 oder mehr (%3 mit --metric); --improve hält sie bei %4</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Number of the carpet, 1 to 8</source>
        <translation>Nummer des Teppichbodens, 1 bis 8</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Pattern repeat across x along, in inches (centimetres with --metric)</source>
        <translation>Rapport quer x längs, in Zoll (mit --metric in Zentimetern)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The match pattern &quot;%1&quot; is not readable: write it as 18x24, the repeat across and along.</source>
        <translation>Der Rapport „%1“ ist nicht lesbar: Schreiben Sie ihn wie 18x24, quer und längs.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The same for so many steps at most, so that the result can be repeated</source>
        <translation>Dasselbe mit höchstens so vielen Schritten, damit das Ergebnis wiederholbar ist</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The sizes are centimetres; lists and totals are metric</source>
        <translation>Die Maße sind Zentimeter; Listen und Summen sind metrisch</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Then look for a better layout, for so many seconds at most or until it is the least possible, with the parts of a divided fill at %1 by --min-cut; Ctrl+C ends that earlier and keeps the best</source>
        <translation>Dann eine bessere Anordnung suchen, höchstens so viele Sekunden oder bis es kürzer nicht geht, mit den Teilen eines geteilten Füllstücks bei %1 je nach --min-cut; Strg+C beendet das früher und behält das Beste</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Width of the roll: 12ft, 13.5ft, 12ft6in, 150in or 366cm</source>
        <translation>Breite der Rolle: 12ft, 13.5ft, 12ft6in, 150in oder 366cm</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write cuts, pieces and totals as JSON</source>
        <translation>Bahnen, Stücke und Summen als JSON schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the cut list to FILE, or to standard output for - (done when no other output is asked for)</source>
        <translation>Die Zuschnittliste nach FILE schreiben, bei - in die Standardausgabe (so, wenn keine andere Ausgabe verlangt ist)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the drawing of the layout with the cut list</source>
        <translation>Die Zeichnung der Anordnung mit der Zuschnittliste schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the page that the program prints, for the paper of the default printer (A4 without one)</source>
        <translation>Die Seite schreiben, die das Programm druckt, für das Papier des Standarddruckers (A4, wenn es keinen gibt)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the whole roll, cuts and fills, true to size for a plotter or cutting table, along X, in inches (centimetres with --metric)</source>
        <translation>Die ganze Rolle, Bahnen und Füllstücke, maßstäblich für einen Plotter oder Schneidetisch schreiben, entlang X, in Zoll (mit --metric in Zentimetern)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>down: room widths across the roll; cross: room lengths</source>
        <translation>down: Raumbreiten quer zur Rolle; cross: Raumlängen</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>No room has %1.</source>
        <translation>Kein Raum hat %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>Warning: the project %1 was entered in metric; it is estimated in feet and inches. Use --metric for centimetres.</source>
        <translation>Warnung: Das Projekt %1 wurde metrisch eingegeben; es wird in Fuß und Zoll berechnet. Verwenden Sie --metric für Zentimeter.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>Warning: the rooms of %1 have no area; there is nothing to cut.</source>
        <translation>Warnung: Die Räume mit %1 haben keine Fläche; es gibt nichts zuzuschneiden.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>The file %1 cannot be read: %2.</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>The file %1 cannot be written: the rooms are read from it. Name another file.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden: Aus ihr werden die Räume gelesen. Nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it has more than %1 MB</source>
        <translation>Sie hat mehr als %1 MB</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a device. Save what comes from it in a file and name that</source>
        <translation>Sie ist ein Gerät. Speichern Sie in einer Datei, was daraus kommt, und nennen Sie diese</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a folder</source>
        <translation>Sie ist ein Ordner</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a pipe. Save what comes from it in a file and name that</source>
        <translation>Sie ist eine Pipe. Speichern Sie in einer Datei, was daraus kommt, und nennen Sie diese</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/Import.cpp"/>
        <source>%1: %n room.</source>
        <comment>%1: %n rooms.</comment>
        <translation>
            <numerusform>%1: %n Raum.</numerusform>
            <numerusform>%1: %n Räume.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/Import.cpp"/>
        <source>The file %1 has no rooms; the project %2 keeps those that it has.</source>
        <translation>Die Datei %1 hat keine Räume; das Projekt %2 behält seine.</translation>
    </message>
    <message>
        <location filename="../src/tools/Import.cpp"/>
        <source>The project %1 has rooms already; --replace puts those of the file in their place.</source>
        <translation>Das Projekt %1 hat schon Räume; --replace setzt die der Datei an ihre Stelle.</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Fills: %1, %2</source>
        <translation>Füllstücke: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Note: beside it there is one of %1.</source>
        <translation>Hinweis: Daneben gibt es eine Anordnung von %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Note: no better layout was found; %1.</source>
        <translation>Hinweis: Keine bessere Anordnung gefunden; %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>%1 Use --roll.</source>
        <translation>%1 Verwenden Sie --roll.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>A roll to compare, with a name and a price per square yard (square metre with --metric) if wanted; may be given several times</source>
        <translation>Eine Rolle zum Vergleich, auf Wunsch mit Namen und Preis je Quadratyard (mit --metric je Quadratmeter); mehrmals möglich</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>A room no wider than the roll may be divided, too</source>
        <translation>Auch ein Raum, der nicht breiter als die Rolle ist, darf geteilt werden</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Cut off along each edge of the roll (default 0, at most 6in or 15cm)</source>
        <translation>An jeder Rollenkante abgeschnitten (Standard 0, höchstens 6in oder 15cm)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Folder to be made; it will hold %1</source>
        <translation>Anzulegender Ordner; er enthält dann %1</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>How long to look for shorter layouts, all rows together (default 2); Ctrl+C ends that earlier and keeps the best</source>
        <translation>Wie lange nach kürzeren Anordnungen gesucht wird, für alle Zeilen zusammen (Standard 2); Strg+C beendet das früher und behält das Beste</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Lengths are written 12ft6in, 18in, 366cm or 3.66m; a bare number is in the project&apos;s units.
All lengths of an order are whole inches, with --metric whole centimetres: roll widths are
rounded down; trim, selvage, shortest part and step up. A pattern repeat must be whole.

The repeat across is the distance to the next column of the pattern, which with --half-drop
stands half a repeat further along: half the repeat of makers who name the whole design.

Options that are given win over the request that is saved with the project.

Exit status: 0 done, 1 refused, or no carpet has an order (the reason is on standard error),
2 wrong usage.

Example:
  tarn-order --rooms house.csv --roll 12ft=18.50 --roll 15ft=19 --lay both --trim 3in</source>
        <translation>Längen schreibt man 12ft6in, 18in, 366cm oder 3.66m; eine bloße Zahl zählt in den Einheiten des
Projekts. Alle Längen einer Bestellung sind ganze Zoll, mit --metric ganze Zentimeter:
Rollenbreiten werden abgerundet; Zugabe, Webkante, kürzestes Teil und Stufe werden aufgerundet.
Ein Rapport muss ganzzahlig sein.

Der Rapport quer ist der Abstand zur nächsten Musterspalte, die mit --half-drop längs einen halben
Rapport weiter steht: die Hälfte des Rapports von Herstellern, die das ganze Muster nennen.

Angegebene Optionen gehen der mit dem Projekt gespeicherten Vorgabe vor.

Rückgabewert: 0 getan, 1 abgelehnt oder kein Teppichboden hat eine Bestellung (der Grund steht in
der Fehlerausgabe), 2 falscher Aufruf.

Beispiel:
  tarn-order --rooms house.csv --roll 12ft=18.50 --roll 15ft=19 --lay both --trim 3in</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Make a data folder with an empty database</source>
        <translation>Einen Datenordner mit leerer Datenbank anlegen</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>More than a room&apos;s width, the same bounds</source>
        <translation>Mehr als die Breite eines Raums, mit denselben Grenzen</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>More than a strip&apos;s length, at its far end (default 0, at most 24in or 60cm)</source>
        <translation>Mehr als die Länge eines Streifens, an seinem Ende (Standard 0, höchstens 24in oder 60cm)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Most parts of a strip, 1 to %1 (default 1)</source>
        <translation>Höchstzahl der Teile eines Streifens, 1 bis %1 (Standard 1)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Number of the carpet, 1 to 8 (default: all of the project)</source>
        <translation>Nummer des Teppichbodens, 1 bis 8 (Standard: alle des Projekts)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Pattern repeat across x along, 0 for none in that direction</source>
        <translation>Rapport quer x längs, 0 für keinen in dieser Richtung</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Percent by which repeats may come out longer (default 1 with a repeat along, else 0; at most 10)</source>
        <translation>Prozent, um die Rapporte länger ausfallen können (Standard 1 bei einem Rapport längs, sonst 0; höchstens 10)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Shortest part of a divided strip (default 3ft, 91cm with --metric)</source>
        <translation>Kürzestes Teil eines geteilten Streifens (Standard 3ft, 91cm mit --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>So many layouts for each row instead, so that the result can be repeated</source>
        <translation>Stattdessen so viele Anordnungen für jede Zeile, damit das Ergebnis wiederholbar ist</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The next column of the pattern stands half a repeat further along</source>
        <translation>Die nächste Musterspalte steht längs einen halben Rapport weiter</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The roll is ordered in whole steps (default 3in, 5cm with --metric)</source>
        <translation>Die Rolle wird in ganzen Stufen bestellt (Standard 3in, 5cm mit --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The sizes are inches, also of a project that was entered in metric</source>
        <translation>Die Maße sind Zoll, auch bei einem metrisch eingegebenen Projekt</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>What to buy and how to cut it: compares rolls and lays, and lists the cuts of the best.
The rooms come from a database (--database and --project) or from a CSV file (--rooms).</source>
        <translation>Was zu kaufen und wie es zuzuschneiden ist: vergleicht Rollen und Verlegungen und listet den Zuschnitt der besten.
Die Räume kommen aus einer Datenbank (--database und --project) oder einer CSV-Datei (--rooms).</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and list as text (on standard output when no other output is asked for)</source>
        <translation>Vergleich und Liste als Text schreiben (in die Standardausgabe, wenn keine andere Ausgabe verlangt ist)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and pieces as CSV</source>
        <translation>Vergleich und Stücke als CSV schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and pieces as a spreadsheet</source>
        <translation>Vergleich und Stücke als Tabelle (XLSX) schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write requests, comparison and pieces as JSON</source>
        <translation>Vorgaben, Vergleich und Stücke als JSON schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the pages of one carpet&apos;s sheet below each other as a drawing (with --carpet when there are several)</source>
        <translation>Die Seiten des Blatts eines Teppichbodens untereinander als Zeichnung schreiben (mit --carpet, wenn es mehrere gibt)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the roll of one carpet&apos;s best row true to size for a plotter or cutting table, along X, in inches (centimetres with --metric)</source>
        <translation>Die Rolle der besten Zeile eines Teppichbodens maßstäblich für einen Plotter oder Schneidetisch schreiben, entlang X, in Zoll (mit --metric in Zentimetern)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the sheet to buy and cut by, of all carpets, as it is printed; A4 unless the printer has another paper</source>
        <translation>Das Bestell- und Zuschnittblatt aller Teppichböden schreiben, wie es gedruckt wird; A4, wenn der Drucker kein anderes Papier hat</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>down: room widths across the roll (default); cross: room lengths</source>
        <translation>down: Raumbreiten quer zur Rolle (Standard); cross: Raumlängen</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>write the repeat across and along, as 18x24.</source>
        <translation>Schreiben Sie den Rapport quer und längs, wie 18x24.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Directory of the configuration file %1</source>
        <translation>Verzeichnis der Konfigurationsdatei %1</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>%1 is refused: %2</source>
        <translation>%1 ist abgelehnt: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>No carpet has an order: every roll and lay is refused.</source>
        <translation>Kein Teppichboden hat eine Bestellung: Jede Rolle und Verlegung ist abgelehnt.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>No room with an area has %1.</source>
        <translation>Kein Raum mit einer Fläche hat %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>Note: %1, %2</source>
        <translation>Hinweis: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>Note: %1: the saved request is in other units and is not used.</source>
        <translation>Hinweis: %1: Die gespeicherte Vorgabe ist in anderen Einheiten und wird nicht verwendet.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>The drawing of %1 shows one carpet, and there are several: choose one with --carpet.</source>
        <translation>Die Zeichnung von %1 zeigt einen Teppichboden, und es gibt mehrere: Wählen Sie mit --carpet einen.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>The project %1 was entered in metric. Use --metric, or --feet to take its sizes as inches.</source>
        <translation>Das Projekt %1 wurde metrisch eingegeben. Verwenden Sie --metric, oder --feet, um seine Maße als Zoll zu nehmen.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>comparing</source>
        <translation>Vergleich läuft</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>A file, or a name as &quot;backups&quot; lists it</source>
        <translation>Eine Datei oder ein Name aus der Liste von „backups“</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Check that a database is sound, and all that stands in it</source>
        <translation>Prüfen, ob eine Datenbank und alles darin einwandfrei ist</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Copy a database, also while the program uses it</source>
        <translation>Eine Datenbank kopieren, auch während das Programm sie benutzt</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Directory of a new project (default: the current month)</source>
        <translation>Verzeichnis eines neuen Projekts (Standard: der laufende Monat)</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Estimate how carpets are cut from the roll.</source>
        <translation>Berechnet, wie Teppichböden aus der Rolle geschnitten werden.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>File to be made; must not exist</source>
        <translation>Anzulegende Datei; darf noch nicht da sein</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>File to write (default: standard output)</source>
        <translation>Zu schreibende Datei (sonst: Standardausgabe)</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>List directories, projects and rooms</source>
        <translation>Verzeichnisse, Projekte und Räume auflisten</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>List the backups that the program made</source>
        <translation>Die Sicherungen auflisten, die das Programm angelegt hat</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Make the rooms of a CSV file those of a project</source>
        <translation>Die Räume einer CSV-Datei zu denen eines Projekts machen</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Print the entered-data report of a project</source>
        <translation>Den Bericht der Eingaben eines Projekts ausgeben</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Put a backup in the place of a database; what was there is kept</source>
        <translation>Eine Sicherung an die Stelle einer Datenbank setzen; was dort war, wird aufbewahrt</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Replace the rooms that the project has</source>
        <translation>Die Räume ersetzen, die das Projekt hat</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Rooms that are to become a project, whose name is asked for</source>
        <translation>Räume, die ein Projekt werden sollen, nach dessen Namen gefragt wird</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>The columns of a CSV file are those that tarn-estimate --help tells.

Exit status: 0 done, 1 the program could not start (the reason is in a box or on standard
error), 2 wrong usage.

Example:
  tarn house.csv</source>
        <translation>Die Spalten einer CSV-Datei sind die, die tarn-estimate --help nennt.

Rückgabewert: 0 getan, 1 das Programm konnte nicht starten (der Grund steht in einem Fenster oder in
der Fehlerausgabe), 2 falscher Aufruf.

Beispiel:
  tarn house.csv</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>The rooms; see tarn-estimate --help</source>
        <translation>Die Räume; siehe tarn-estimate --help</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write a clean copy of all that can be read</source>
        <translation>Eine saubere Kopie von allem Lesbaren schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write a project&apos;s rooms as CSV</source>
        <translation>Die Räume eines Projekts als CSV schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write it as CSV instead</source>
        <translation>Ihn stattdessen als CSV schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write it as a spreadsheet instead</source>
        <translation>Ihn stattdessen als Tabelle (XLSX) schreiben</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write them as a spreadsheet, with the totals by covering</source>
        <translation>Sie als Tabelle (XLSX) schreiben, mit den Summen je Belag</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>the CSV</source>
        <translation>die CSV-Datei</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Note: %1, and %n more size that is rounded</source>
        <comment>Note: %1, and %n more sizes that are rounded</comment>
        <translation>
            <numerusform>Hinweis: %1, und %n weiteres gerundetes Maß</numerusform>
            <numerusform>Hinweis: %1, und %n weitere gerundete Maße</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Or name the encoding of the file with --encoding, such as windows-1252.</source>
        <translation>Oder nennen Sie mit --encoding die Zeichenkodierung der Datei, etwa windows-1252.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The file %1 cannot be used; nothing was taken from it:</source>
        <translation>Die Datei %1 ist nicht verwendbar; nichts wurde aus ihr übernommen:</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The name of the directory &quot;%1&quot; %2</source>
        <translation>Der Name des Verzeichnisses „%1“ %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The name of the project &quot;%1&quot; %2</source>
        <translation>Der Name des Projekts „%1“ %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The project %1 cannot be loaded: %2</source>
        <translation>Das Projekt %1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The project %1 has no saved rooms.</source>
        <translation>Das Projekt %1 hat keine gespeicherten Räume.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>There is no project %1. &quot;tarn-data list&quot; tells the projects that there are.</source>
        <translation>Es gibt kein Projekt %1. „tarn-data list“ nennt die vorhandenen.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>holds U+FFFE or U+FFFF, which are no characters.</source>
        <translation>enthält U+FFFE oder U+FFFF, die keine Zeichen sind.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>holds a line break or another control character.</source>
        <translation>enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>is not UTF-8: the terminal that it was typed in writes another code.</source>
        <translation>ist kein UTF-8: Das Terminal, in dem er eingegeben wurde, verwendet eine andere Kodierung.</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 and %2 cannot both go to %3</source>
        <translation>%1 und %2 können nicht beide nach %3 gehen</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 and %2 cannot both go to standard output</source>
        <translation>%1 und %2 können nicht beide zur Standardausgabe gehen</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 is not a number above 0</source>
        <translation>%1 ist keine Zahl über 0</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Another seed makes the search take another way</source>
        <translation>Ein anderer Startwert lässt die Suche einen anderen Weg nehmen</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>CSV file with the rooms</source>
        <translation>CSV-Datei mit den Räumen</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Database file of the project</source>
        <translation>Datenbankdatei des Projekts</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Display program version information and exit</source>
        <translation>Die Version des Programms ausgeben und enden</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Encoding of the CSV file, such as windows-1252; &quot;iconv -l&quot; lists them (default: what its byte-order mark says, else UTF-8)</source>
        <translation>Zeichenkodierung der CSV-Datei, etwa windows-1252; „iconv -l“ nennt sie (Standard: was ihre Bytereihenfolge-Marke sagt, sonst UTF-8)</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Excludes</source>
        <translation>Nicht mit</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Language of what is said to people; what programs read stays as it is</source>
        <translation>Sprache dessen, was Menschen gesagt wird; was Programme lesen, bleibt gleich</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Needs</source>
        <translation>Braucht</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>POSITIVE</source>
        <translation>POSITIV</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Positionals</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>REQUIRED</source>
        <translation>ERFORDERLICH</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Write over a database too, and where a symbolic link leads</source>
        <translation>Auch über eine Datenbank schreiben und dorthin, wohin eine Verknüpfung führt</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>either --database and --project, or --rooms is required</source>
        <translation>entweder --database und --project oder --rooms ist erforderlich</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>the value is empty</source>
        <translation>Der Wert ist leer</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The sizes are centimetres</source>
        <translation>Die Maße sind Zentimeter</translation>
    </message>
    <message>
        <location filename="../src/tools/StandardStreams.h"/>
        <source>Standard output cannot be written.</source>
        <translation>Die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <location filename="../src/tools/ToolMain.cpp"/>
        <source>What was asked for is done, but standard output cannot be written.</source>
        <translation>Das Verlangte ist getan, aber die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <location filename="../src/tools/tarn.cpp"/>
        <source>There is no display to show the program on.</source>
        <translation>Es gibt keinen Bildschirm, auf dem das Programm gezeigt werden kann.</translation>
    </message>
</context>
</TS>
