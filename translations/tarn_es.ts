<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>tarn</name>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Internal error</source>
        <translation>Error interno</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Invalid procedure call</source>
        <translation>Llamada no válida</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Run-time error &apos;%1&apos;:</source>
        <translation>Error &apos;%1&apos; en tiempo de ejecución:</translation>
    </message>
    <message>
        <location filename="../src/base/RunTimeError.cpp"/>
        <source>Subscript out of range</source>
        <translation>Índice fuera de rango</translation>
    </message>
    <message>
        <location filename="../src/engine/CleanUp.cpp"/>
        <source>The layout failed its own check and was discarded.</source>
        <translation>La disposición no pasó su propia comprobación y se descartó.</translation>
    </message>
    <message>
        <location filename="../src/engine/PreparePieces.cpp"/>
        <source>There are more than %1 pieces: estimate the rooms in two projects.</source>
        <translation>Hay más de %1 piezas: calcule las estancias en dos proyectos.</translation>
    </message>
    <message>
        <location filename="../src/engine/ResultLength.cpp"/>
        <source>The fills need more than %1 inches of roll: estimate the rooms in two projects.</source>
        <translation>Los rellenos necesitan más de %1 pulgadas de rollo: calcule las estancias en dos proyectos.</translation>
    </message>
    <message>
        <location filename="../src/engine/Search.cpp"/>
        <source>The layout is not as long as its trial and was discarded.</source>
        <translation>La disposición no mide lo mismo que su prueba y se descartó.</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>CROSSLAY</source>
        <translation>DE TRAVÉS</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Carpet-%1  Width=%2</source>
        <translation>Moqueta-%1  Ancho=%2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>DOWNLAY</source>
        <translation>A LO LARGO</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Fills end at:%1</source>
        <translation>Los rellenos acaban en: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Match Pattern: %1</source>
        <translation>Rapport: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Tile-%1: %2 SQ. FT.  Tile Base: %3 FEET</source>
        <translation>Loseta-%1: %2 ft²  Rodapié: %3 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Tile-%1: %2 SQ. Meters.  Tile Base: %3 CM</source>
        <translation>Loseta-%1: %2 m²  Rodapié: %3 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total BASE: %1 CM</source>
        <translation>Rodapié total: %1 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total BASE: %1 FEET</source>
        <translation>Rodapié total: %1 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Cuts:%1   Total Cut-Len:%2</source>
        <translation>Cortes: %1   Largo de cortes: %2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Fills:%1   Total Fill-Len:%2</source>
        <translation>Rellenos: %1   Largo de rellenos: %2</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Length:%1</source>
        <translation>Largo total: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Length: %1</source>
        <translation>Largo total con rapport: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Size: %1 SQ. FT.   %2 SQ. Yards</source>
        <translation>Superficie total con rapport: %1 ft²   %2 yd²</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total Match Pattern Size: %1 SQ. Meters   </source>
        <translation>Superficie total con rapport: %1 m²   </translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. FT.:%1</source>
        <translation>Total ft²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. Meters:%1</source>
        <translation>Total m²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/CutList.cpp"/>
        <source>Total SQ. Yards:%1</source>
        <translation>Total yd²: %1</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.cpp"/>
        <source>= %1 CM</source>
        <translation>= %1 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.h"/>
        <source>The carpet width is not correct.</source>
        <translation>El ancho del rollo no es correcto.</translation>
    </message>
    <message>
        <location filename="../src/estimate/EstimateChoices.h"/>
        <source>The match pattern is not correct.</source>
        <translation>El rapport no es correcto.</translation>
    </message>
    <message>
        <location filename="../src/estimate/FillLabels.cpp"/>
        <source>Cut%1</source>
        <translation>Corte%1</translation>
    </message>
    <message>
        <location filename="../src/estimate/ImproveEstimate.cpp"/>
        <source>%1 shorter</source>
        <translation>%1 más corto</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>%1 with parts of at least %2</source>
        <translation>%1 con tramos de al menos %2</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>%n join fewer</source>
        <comment>%n joins fewer</comment>
        <translation>
            <numerusform>%n empalme menos</numerusform>
            <numerusform>%n empalmes menos</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>at most %1 above the least possible</source>
        <translation>como máximo %1 por encima del mínimo posible</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>fills %1 shorter</source>
        <translation>rellenos %1 más cortos</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>fills less than 0.1% shorter</source>
        <translation>rellenos menos de un 0.1% más cortos</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>larger free end</source>
        <translation>extremo libre mayor</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>none whose parts keep the minimum cut is as short</source>
        <translation>ninguna cuyos tramos respeten el corte mínimo es tan corta</translation>
    </message>
    <message>
        <location filename="../src/estimate/Improvement.cpp"/>
        <source>the least possible</source>
        <translation>el mínimo posible</translation>
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
        <translation>NO HAY RELLENOS</translation>
    </message>
    <message>
        <location filename="../src/estimate/LayoutDrawing.cpp"/>
        <source>The fills are shorter than 1 inch: check the sizes of this carpet&apos;s rooms.</source>
        <translation>Los rellenos miden menos de 1 pulgada: compruebe las medidas de las estancias de esta moqueta.</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>%1 inch</source>
        <translation>%1 pulgada</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>%1 inches</source>
        <translation>%1 pulgadas</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>1/2FT</source>
        <translation>1/2 PIE</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>15 cm</source>
        <translation>15 cm</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>1FT 6&quot;</source>
        <translation>1 PIE 6&quot;</translation>
    </message>
    <message>
        <location filename="../src/estimate/MinCuts.cpp"/>
        <source>3 FT</source>
        <translation>3 PIES</translation>
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
        <translation>El rapport %1 es demasiado grande: puede ser de %2 como máximo.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; is not readable: write it as 12ft, 13.5ft, 12ft6in, 150in or 366cm.</source>
        <translation>El ancho de rollo «%1» no se entiende: escríbalo como 12ft, 13.5ft, 12ft6in, 150in o 366cm.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; is too large.</source>
        <translation>El ancho de rollo «%1» es demasiado grande.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.cpp"/>
        <source>The roll width &quot;%1&quot; must be more than 0.</source>
        <translation>El ancho de rollo «%1» debe ser mayor que 0.</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 12 FT.</source>
        <translation>ANCHO DE ROLLO 12 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 13.5 FT.</source>
        <translation>ANCHO DE ROLLO 13.5 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 15 FT.</source>
        <translation>ANCHO DE ROLLO 15 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 183 CMS</source>
        <translation>ANCHO DE ROLLO 183 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 366 CMS</source>
        <translation>ANCHO DE ROLLO 366 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 411 CMS</source>
        <translation>ANCHO DE ROLLO 411 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 457 CMS</source>
        <translation>ANCHO DE ROLLO 457 CM</translation>
    </message>
    <message>
        <location filename="../src/estimate/RollWidth.h"/>
        <source>CARPET WIDTH 6 FT.</source>
        <translation>ANCHO DE ROLLO 6 PIES</translation>
    </message>
    <message>
        <location filename="../src/estimate/RoomCuts.cpp"/>
        <source>There are more than %1 cuts: choose a wider roll or estimate the rooms in two projects.</source>
        <translation>Hay más de %1 cortes: elija un rollo más ancho o calcule las estancias en dos proyectos.</translation>
    </message>
    <message>
        <location filename="../src/files/Descriptor.cpp"/>
        <source>the disk is full. Free some space and try again</source>
        <translation>el disco está lleno. Libere espacio e inténtelo de nuevo</translation>
    </message>
    <message>
        <location filename="../src/files/FileModes.cpp"/>
        <source>The file cannot be made</source>
        <translation>El archivo no se puede crear</translation>
    </message>
    <message>
        <location filename="../src/files/FileModes.cpp"/>
        <source>The folder cannot be made</source>
        <translation>No se puede crear la carpeta</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>a PDF document</source>
        <translation>un documento PDF</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an Excel workbook (XLSX)</source>
        <translation>un libro de Excel (XLSX)</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an OpenDocument spreadsheet (ODS)</source>
        <translation>una hoja de cálculo de OpenDocument (ODS)</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an archive (ZIP), as spreadsheets such as XLSX and ODS are</source>
        <translation>un archivo comprimido (ZIP), como lo son las hojas de cálculo XLSX y ODS</translation>
    </message>
    <message>
        <location filename="../src/files/ForeignFile.cpp"/>
        <source>an older Excel workbook (XLS) or another Office file</source>
        <translation>un libro de Excel antiguo (XLS) u otro archivo de Office</translation>
    </message>
    <message>
        <location filename="../src/files/Language.cpp"/>
        <source>There is no language &quot;%1&quot;. Choose one of %2.</source>
        <translation>No existe el idioma «%1». Elija uno de %2.</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Across</source>
        <translation>A lo ancho</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut</source>
        <translation>Pieza</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>In the pattern</source>
        <translation>En el dibujo</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Room</source>
        <translation>Estancia</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Size</source>
        <translation>Medida</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <location filename="../src/files/OrderText.cpp"/>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Which</source>
        <translation>Cuál</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>%1. The new file may be there all the same</source>
        <translation>%1. El archivo nuevo puede estar ahí de todos modos</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 is a database and stays as it is. Name another file for the output.</source>
        <translation>El archivo %1 es una base de datos y se queda como está. Indique otro archivo para la salida.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 is a link, which leads to %2, and stays as it is. Name another file for the output.</source>
        <translation>El archivo %1 es un enlace a %2 y se queda como está. Indique otro archivo para la salida.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The folder %1 cannot be stored: %2.</source>
        <translation>La carpeta %1 no se puede grabar en el disco: %2.</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>it is read-only</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>nothing reads from it</source>
        <translation>nadie lee de él</translation>
    </message>
    <message>
        <location filename="../src/files/RollDxf.cpp"/>
        <source>There is no roll to draw: every roll and lay is refused.</source>
        <translation>No hay rollo que dibujar: todos los rollos y colocaciones se rechazan.</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1 «%2»</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 appears twice</source>
        <translation>%1 aparece dos veces</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a comma: write %2, or %3</source>
        <translation>%1 tiene una coma: escriba %2 o %3</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a decimal comma: write %2</source>
        <translation>%1 tiene una coma decimal: escriba %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a decimal comma: write %2 below a heading with its unit, such as %3</source>
        <translation>%1 tiene una coma decimal: escriba %2 bajo un encabezado con su unidad, como %3</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a quote that is never closed</source>
        <translation>%1 tiene unas comillas que nunca se cierran</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has a unit in which no size is read; give the sizes in ft, in, m or cm</source>
        <translation>%1 tiene una unidad en la que no se leen medidas; dé las medidas en ft, in, m o cm</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has more than %2 characters</source>
        <translation>%1 tiene más de %2 caracteres</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 has text behind its closing quote</source>
        <translation>%1 tiene texto tras las comillas de cierre</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 holds U+FFFE or U+FFFF, which are no characters; leave them out</source>
        <translation>%1 contiene U+FFFE o U+FFFF, que no son caracteres; quítelos</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 holds a line break or another control character; write it in one line</source>
        <translation>%1 contiene un salto de línea u otro carácter de control; escríbalo en una sola línea</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is in feet or inches, and the rooms are read in metric; read them without metric</source>
        <translation>%1 está en pies o pulgadas y las estancias se leen en métrico; léalas sin métrico</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is in metric, and the rooms are read in feet and inches; read them with metric</source>
        <translation>%1 está en métrico y las estancias se leen en pies y pulgadas; léalas en métrico</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is kept as %2</source>
        <translation>%1 se guarda como %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is missing</source>
        <translation>falta %1</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is negative</source>
        <translation>%1 es una medida negativa</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a covering: %2 to %3, %4 to %5, or short as %6 or %7</source>
        <translation>%1 no es un material: de %2 a %3, de %4 a %5, o abreviado como %6 o %7</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size in whole centimetres</source>
        <translation>%1 no es una medida en centímetros enteros</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size in whole inches, or in feet and inches such as 12&apos;6&quot;</source>
        <translation>%1 no es una medida en pulgadas enteras, ni en pies y pulgadas como 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size such as 12.5 or 12&apos;6&quot;</source>
        <translation>%1 no es una medida como 12.5 o 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a size such as 3.45 or 3.45m</source>
        <translation>%1 no es una medida como 3.45 o 3.45m</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not a wall base: L or W with 1 or 2, such as %2</source>
        <translation>%1 no es un rodapié: L o W con 1 o 2, como %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is not valid UTF-8; save it as UTF-8 (&quot;CSV UTF-8&quot; in a spreadsheet)</source>
        <translation>%1 no es UTF-8 válido; guarde el archivo como UTF-8 («CSV UTF-8» en una hoja de cálculo)</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is too large: a size is at most %2</source>
        <translation>%1 es demasiado grande: una medida es %2 como máximo</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>%1 is unknown</source>
        <translation>no se conoce %1</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>a column has no name</source>
        <translation>una columna no tiene nombre</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>and %n more mistake</source>
        <comment>and %n more mistakes</comment>
        <translation>
            <numerusform>y %n error más</numerusform>
            <numerusform>y %n errores más</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>column &quot;%1&quot;</source>
        <translation>la columna «%1»</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>column %1: the byte %2 is none of %3</source>
        <translation>carácter %1: el byte %2 no existe en %3</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>field</source>
        <translation>un campo</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>field &quot;%1&quot;</source>
        <translation>el campo «%1»</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the file is %1; open it in a spreadsheet and save it as CSV</source>
        <translation>el archivo es %1; ábralo en una hoja de cálculo y guárdelo como CSV</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the line has %1 columns; a room has %2</source>
        <translation>la línea tiene %1 columnas; una estancia tiene %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the line has %1 fields and the header %2</source>
        <translation>campos en la línea: %1; en la cabecera: %2</translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>the text has more than %1 MB</source>
        <translation>el texto tiene más de %1 MB</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>there are no headings, and %n column: without headings they are %1, of which the first %2 are needed</source>
        <comment>there are no headings, and %n columns: without headings they are %1, of which the first %2 are needed</comment>
        <translation>
            <numerusform>no hay encabezados y solo hay %n columna: sin encabezados son %1, de las que hacen falta las %2 primeras</numerusform>
            <numerusform>no hay encabezados y hay %n columnas: sin encabezados son %1, de las que hacen falta las %2 primeras</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/files/RoomCsv.cpp"/>
        <source>there is no text to paste</source>
        <translation>no hay ningún texto que pegar</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: %1</source>
        <translation>No se puede hacer la hoja de cálculo: %1</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: %1.</source>
        <translation>No se puede hacer la hoja de cálculo: %1.</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: no sheet %1.</source>
        <translation>No se puede hacer la hoja de cálculo: no hay hoja %1.</translation>
    </message>
    <message>
        <location filename="../src/files/Spreadsheet.cpp"/>
        <source>The spreadsheet cannot be made: out of memory.</source>
        <translation>No se puede hacer la hoja de cálculo: falta memoria.</translation>
    </message>
    <message>
        <location filename="../src/files/TextEncoding.cpp"/>
        <source>The encoding &quot;%1&quot; is not known; &quot;iconv -l&quot; lists those that are.</source>
        <translation>La codificación «%1» no se conoce; «iconv -l» enumera las conocidas.</translation>
    </message>
    <message>
        <location filename="../src/improve/ImproveFills.cpp"/>
        <source>The improved layout is longer than before and was discarded.</source>
        <translation>La disposición mejorada es más larga que antes y se descartó.</translation>
    </message>
    <message>
        <location filename="../src/order/CarpetRequests.h"/>
        <source>No room with an area has a carpet.</source>
        <translation>Ninguna estancia con superficie tiene moqueta.</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>a refused row has figures</source>
        <translation>una fila rechazada tiene cifras</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>not every strip is laid</source>
        <translation>no todas las tiras están colocadas</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 belongs to no room</source>
        <translation>la pieza %1 no pertenece a ninguna estancia</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 does not begin where its strip does</source>
        <translation>la pieza %1 no empieza donde empieza su tira</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 does not know its strips</source>
        <translation>la pieza %1 no conoce sus tiras</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 has no length</source>
        <translation>la pieza %1 no tiene largo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 is not as wide as its strip</source>
        <translation>la pieza %1 no es tan ancha como su tira</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>piece %1 is not on the roll</source>
        <translation>la pieza %1 no está en el rollo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 do not match across the roll</source>
        <translation>las piezas %1 y %2 no casan a lo ancho del rollo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 do not match along the roll</source>
        <translation>las piezas %1 y %2 no casan a lo largo del rollo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>pieces %1 and %2 overlap</source>
        <translation>las piezas %1 y %2 se solapan</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>row %1: %2</source>
        <translation>fila %1: %2</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the area bought is wrong</source>
        <translation>la superficie comprada es errónea</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the area of the rooms is wrong</source>
        <translation>la superficie de las estancias es errónea</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the best row is not the best</source>
        <translation>la mejor fila no es la mejor</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the labels are not in a row</source>
        <translation>las letras no van seguidas</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the least length is above the length needed</source>
        <translation>el largo mínimo es mayor que el necesario</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the length needed is not the end of the last piece</source>
        <translation>el largo necesario no es el final de la última pieza</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the length to be ordered is wrong</source>
        <translation>el largo que se pide es erróneo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the pieces are not in cutting order</source>
        <translation>las piezas no están en orden de corte</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the price is missing or made up</source>
        <translation>el precio falta o es inventado</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the price is wrong</source>
        <translation>el precio es erróneo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the roll&apos;s width is not its whole units</source>
        <translation>el ancho del rollo no está en unidades enteras</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the rows are not in their order</source>
        <translation>las filas no están en su orden</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the seams or joins are not counted right</source>
        <translation>las juntas o empalmes no están bien contados</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 does not have its parts numbered</source>
        <translation>los tramos de la tira de la pieza %1 no están numerados</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has a part that is too short</source>
        <translation>la tira de la pieza %1 tiene un tramo demasiado corto</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has parts that do not follow each other</source>
        <translation>los tramos de la tira de la pieza %1 no van seguidos</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 has too many parts</source>
        <translation>la tira de la pieza %1 tiene demasiados tramos</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the strip of piece %1 is not laid whole</source>
        <translation>la tira de la pieza %1 no está colocada entera</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the usable width is not what the selvage leaves</source>
        <translation>el ancho útil no es lo que deja el orillo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>the waste is wrong</source>
        <translation>el desperdicio es erróneo</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>there are pieces without figures</source>
        <translation>hay piezas sin cifras</translation>
    </message>
    <message>
        <location filename="../src/order/CheckOrder.cpp"/>
        <source>there is not a row for each roll and lay</source>
        <translation>no hay una fila para cada rollo y colocación</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>A fill narrower than %1: %2.</source>
        <translation>Un relleno más estrecho que %1: %2.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>Less trim than asked for: %1.</source>
        <translation>Menos demasía de la pedida: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>Nothing is allowed for trimming.</source>
        <translation>No se prevé demasía.</translation>
    </message>
    <message>
        <location filename="../src/order/Comparison.cpp"/>
        <source>The roll of %1 counts as %2, a centimetre short of the standard one.</source>
        <translation>El rollo de %1 cuenta como %2, un centímetro menos que el habitual.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least carpet, for no roll has a price; of equal ones, the shortest seams and joins.</source>
        <translation>Lo mejor es la menor cantidad de moqueta, pues ningún rollo tiene precio; a igualdad, las juntas y empalmes más cortos.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least carpet, for these rolls have no price: %1.</source>
        <translation>Lo mejor es la menor cantidad de moqueta, pues estos rollos no tienen precio: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best is the least price; of equal ones, the shortest seams and joins.</source>
        <translation>Lo mejor es el menor precio; a igualdad, las juntas y empalmes más cortos.</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Best: %1, %2 in one length without a join</source>
        <translation>Mejor: %1, %2 en una sola pieza sin empalme</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <source>Chosen: %1, %2 in one length without a join</source>
        <translation>Elegido: %1, %2 en una sola pieza sin empalme</translation>
    </message>
    <message>
        <location filename="../src/order/ComparisonText.cpp"/>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/order/CutLines.cpp"/>
        <source>%n repeat</source>
        <comment>%n repeats</comment>
        <translation>
            <numerusform>%n rapport</numerusform>
            <numerusform>%n rapports</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>drop %1 of %2</source>
        <translation>paño %1 de %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>fill %1 of %2</source>
        <translation>relleno %1 de %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <source>part %1 of %2</source>
        <translation>tramo %1 de %2</translation>
    </message>
    <message>
        <location filename="../src/order/CutLines.cpp"/>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <location filename="../src/order/MakeOrder.cpp"/>
        <source>The order was discarded: %1.</source>
        <translation>El pedido se descartó: %1.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 cannot match: its fill of %2 has no place across the roll&apos;s usable width of %3 by the repeat of %4.</source>
        <translation>%1 no puede casar: su relleno de %2 no tiene sitio en el ancho útil de %3 con el rapport de %4.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 cannot match: strips as wide as the roll lie beside each other in it, and the roll&apos;s usable width of %2 is not a whole number of repeats of %3 across.</source>
        <translation>%1 no puede casar: contiene tiras de todo el ancho del rollo una junto a otra, y el ancho útil del rollo de %2 no es un número entero de rapports de %3 a lo ancho.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>%1 is too long: with its trim a strip may be %2 long.</source>
        <translation>%1 es demasiado larga: con su demasía una tira puede medir como máximo %2.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>Room %1</source>
        <translation>La estancia %1</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>Room %1 (%2)</source>
        <translation>La estancia %1 (%2)</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>The roll is no wider than its selvage.</source>
        <translation>El rollo no es más ancho que sus orillos.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>There are more than %1 strips: choose a wider roll or order the rooms in two projects.</source>
        <translation>Hay más de %1 tiras: elija un rollo más ancho o pida las estancias en dos proyectos.</translation>
    </message>
    <message>
        <location filename="../src/order/OrderStrips.cpp"/>
        <source>room %1 (%2)</source>
        <translation>estancia %1 (%2)</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <source>cross</source>
        <translation>de través</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <source>down</source>
        <translation>a lo largo</translation>
    </message>
    <message>
        <location filename="../src/order/OrderWords.cpp"/>
        <location filename="../src/order/SheetFront.cpp"/>
        <location filename="../src/screens/rooms/RoomTableModel.cpp"/>
        <source>none</source>
        <translation>no hay</translation>
    </message>
    <message>
        <location filename="../src/order/RollPlan.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 % of what is bought</source>
        <translation>%1 % de lo comprado</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 across, %2 along, half drop; drift %3</source>
        <translation>%1 a lo ancho, %2 a lo largo, medio salto; deriva %3</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 across, %2 along; drift %3</source>
        <translation>%1 a lo ancho, %2 a lo largo; deriva %3</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 along, %2 across; part of the sizes</source>
        <translation>%1 a lo largo, %2 a lo ancho; incluida en las medidas</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 feet</source>
        <translation>%1 pies</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1 in one length without a join</source>
        <translation>%1 en una sola pieza sin empalme</translation>
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
        <translation>%1, mínimo posible %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1, the least possible</source>
        <translation>%1, el mínimo posible</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>%1, without the selvage of %2 on each side</source>
        <translation>%1, sin el orillo de %2 a cada lado</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Area bought</source>
        <translation>Superficie comprada</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Area of the rooms</source>
        <translation>Superficie de las estancias</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Bought sq. ft.</source>
        <translation>Comprado ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Bought sq. m</source>
        <translation>Comprado m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Carpet</source>
        <translation>Moqueta</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Cross joins</source>
        <translation>Empalmes transversales</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>How it is cut</source>
        <translation>Cómo se corta</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Joins</source>
        <translation>Empalmes</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Joins cm</source>
        <translation>Empalmes cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Lay</source>
        <translation>Colocación</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Least possible</source>
        <translation>Mínimo posible</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Least possible cm</source>
        <translation>Mínimo posible cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Needed</source>
        <translation>Necesario</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Needed cm</source>
        <translation>Necesario cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>No order</source>
        <translation>Sin pedido</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order</source>
        <translation>Pedir</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order and cutting sheet</source>
        <translation>Hoja de pedido y corte</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Order cm</source>
        <translation>Pedir cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Parts of a strip</source>
        <translation>Tramos de una tira</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pattern repeat</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pieces</source>
        <translation>Piezas</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Pile</source>
        <translation>Pelo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Roll width</source>
        <translation>Ancho del rollo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Rooms sq. ft.</source>
        <translation>Estancias ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Rooms sq. m</source>
        <translation>Estancias m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Seams</source>
        <translation>Juntas</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Seams cm</source>
        <translation>Juntas cm</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Side seams</source>
        <translation>Juntas laterales</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Strips with trim</source>
        <translation>Tiras con demasía</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>To be ordered</source>
        <translation>A pedir</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trim</source>
        <translation>Demasía</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trimmed sq. ft.</source>
        <translation>Con demasía ft²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Trimmed sq. m</source>
        <translation>Con demasía m²</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Usable width</source>
        <translation>Ancho útil</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Wall base</source>
        <translation>Rodapié</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Waste</source>
        <translation>Desperdicio</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>Waste %</source>
        <translation>Desperdicio %</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>What else the project needs</source>
        <translation>Qué más necesita el proyecto</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>What to buy</source>
        <translation>Qué comprar</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>at most %1, none shorter than %2</source>
        <translation>%1 como máximo, ninguno más corto que %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>at most %1, none shorter than %2, of rooms too</source>
        <translation>%1 como máximo, ninguno más corto que %2, también en estancias que caben en el rollo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>cross: room lengths across the roll</source>
        <translation>de través: el largo de las estancias a lo ancho del rollo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>down: room widths across the roll</source>
        <translation>a lo largo: el ancho de las estancias a lo ancho del rollo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <source>the same way on all pieces: see the arrows</source>
        <translation>en el mismo sentido en todas las piezas: vea las flechas</translation>
    </message>
    <message>
        <location filename="../src/order/SheetFront.cpp"/>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <location filename="../src/order/SheetLabels.h"/>
        <source>%1 continues</source>
        <translation>%1 continúa</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source> Where a piece must match, cut on the pattern, not on the tape.</source>
        <translation> Donde una pieza deba casar, corte por el dibujo, no por la cinta métrica.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut in this order. From and to count along the roll from its start, across from its usable edge; centimetres.</source>
        <translation>Corte en este orden. «De» y «A» se cuentan a lo largo del rollo desde su inicio; «A lo ancho», desde su borde útil; centímetros.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetList.cpp"/>
        <source>Cut in this order. From and to count along the roll from its start, across from its usable edge; feet and inches.</source>
        <translation>Corte en este orden. «De» y «A» se cuentan a lo largo del rollo desde su inicio; «A lo ancho», desde su borde útil; pies y pulgadas.</translation>
    </message>
    <message>
        <location filename="../src/order/SheetPage.cpp"/>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <location filename="../src/order/SheetRoll.cpp"/>
        <source>Pieces too small to be labelled on the roll</source>
        <translation>Piezas demasiado pequeñas para rotularlas en el rollo</translation>
    </message>
    <message>
        <location filename="../src/order/SheetRoll.cpp"/>
        <source>pile</source>
        <translation>pelo</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Choose a default printer in the system&apos;s printer settings, or set this one up there.</source>
        <translation>Elija una impresora predeterminada en los ajustes de impresoras del sistema, o configure allí esta.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Let it accept jobs in the system&apos;s printer settings, or choose another default printer there.</source>
        <translation>Haga que acepte trabajos en los ajustes de impresoras del sistema, o elija allí otra impresora predeterminada.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Look at the printer in the system&apos;s printer settings, then print again.</source>
        <translation>Mire la impresora en los ajustes de impresoras del sistema y vuelva a imprimir.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Look whether the page comes out before you print again.</source>
        <translation>Compruebe si sale la página antes de volver a imprimir.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Put that right at the printer, then print again.</source>
        <translation>Arréglelo en la impresora y vuelva a imprimir.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>Start it again in the system&apos;s printer settings, or choose another default printer there.</source>
        <translation>Vuelva a ponerla en marcha en los ajustes de impresoras del sistema, o elija allí otra impresora predeterminada.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 %2.</source>
        <translation>La impresora %1 %2.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 does not tell whether it took the job. %2</source>
        <translation>La impresora %1 no dice si aceptó el trabajo. %2</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 is stopped.</source>
        <translation>La impresora %1 está detenida.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 refused the job: %2.</source>
        <translation>La impresora %1 rechazó el trabajo: %2.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printer %1 takes no jobs.</source>
        <translation>La impresora %1 no acepta trabajos.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>The printing system does not name the default printer: %1.</source>
        <translation>El sistema de impresión no indica la impresora predeterminada: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>There is no default printer.</source>
        <translation>No hay impresora predeterminada.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsQueue.cpp"/>
        <source>There is no printer %1.</source>
        <translation>No hay ninguna impresora %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>Check that the printing system runs and that its network is there, then print again.</source>
        <translation>Compruebe que el sistema de impresión funciona y que hay red, y vuelva a imprimir.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system (%1) cannot be reached.</source>
        <translation>No se puede acceder al sistema de impresión (%1).</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system cannot be asked: %1.</source>
        <translation>No se puede consultar al sistema de impresión: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not answer: it hung up.</source>
        <translation>El sistema de impresión no responde: cortó la conexión.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not answer: it keeps silent.</source>
        <translation>El sistema de impresión no responde: guarda silencio.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system does not let this user in.</source>
        <translation>El sistema de impresión no admite a este usuario.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>The printing system refused the request: %1.</source>
        <translation>El sistema de impresión rechazó la petición: %1.</translation>
    </message>
    <message>
        <location filename="../src/paper/CupsServer.cpp"/>
        <source>Whoever looks after the printing system can allow it.</source>
        <translation>Puede permitirlo quien administre el sistema de impresión.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.cpp"/>
        <source>TARN RESULT  (PROJECT: %1)  %2</source>
        <translation>RESULTADO TARN  (PROYECTO: %1)  %2</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.h"/>
        <source>The list stands on the screen, in the drawing saved as SVG, and in what tarn-estimate --text writes.</source>
        <translation>La lista está en la pantalla, en el dibujo guardado como SVG y en lo que escribe tarn-estimate --text.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePage.h"/>
        <source>The page cannot show the cut list: the layout is too long for it.</source>
        <translation>La página no puede mostrar la lista de corte: la disposición es demasiado larga.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePaper.cpp"/>
        <source>The estimate could not be put on paper.</source>
        <translation>El cálculo no se pudo pasar al papel.</translation>
    </message>
    <message>
        <location filename="../src/paper/EstimatePaper.cpp"/>
        <source>The paper is too small for the estimate.</source>
        <translation>El papel es demasiado pequeño para el cálculo.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>ORDER (PROJECT: %1)</source>
        <translation>PEDIDO (PROYECTO: %1)</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The order could not be put on a further page.</source>
        <translation>El pedido no se pudo pasar a otra página.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The order could not be put on paper.</source>
        <translation>El pedido no se pudo pasar al papel.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <source>The paper is too small for the order.</source>
        <translation>El papel es demasiado pequeño para el pedido.</translation>
    </message>
    <message>
        <location filename="../src/paper/OrderPaper.cpp"/>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>ORDER</source>
        <translation>PEDIDO</translation>
    </message>
    <message>
        <location filename="../src/paper/Paper.h"/>
        <source>Choose a larger paper in the system&apos;s printer settings.</source>
        <translation>Elija un papel más grande en los ajustes de impresoras del sistema.</translation>
    </message>
    <message>
        <location filename="../src/paper/PdfFile.cpp"/>
        <source>No page can be made on paper of that size.</source>
        <translation>No se puede hacer ninguna página en papel de ese tamaño.</translation>
    </message>
    <message>
        <location filename="../src/paper/Printer.h"/>
        <source>Warning: Your printer is not ready!<byte value="xd"/>
<byte value="xd"/>
You couldn&apos;t print in the program</source>
        <translation>Atención: ¡su impresora no está lista!<byte value="xd"/>
<byte value="xd"/>
No se puede imprimir en el programa</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has a paper jam</source>
        <translation>tiene un atasco de papel</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has an open cover</source>
        <translation>tiene una cubierta abierta</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>has an open door</source>
        <translation>tiene una puerta abierta</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is off line</source>
        <translation>está desconectada</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of ink or toner</source>
        <translation>no tiene tinta o tóner</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of paper</source>
        <translation>no tiene papel</translation>
    </message>
    <message>
        <location filename="../src/paper/PrinterTrouble.cpp"/>
        <source>is out of toner</source>
        <translation>no tiene tóner</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The paper is too small for the report.</source>
        <translation>El papel es demasiado pequeño para el informe.</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The report could not be put on a further page.</source>
        <translation>El informe no se pudo pasar a otra página.</translation>
    </message>
    <message>
        <location filename="../src/paper/ReportPaper.cpp"/>
        <source>The report could not be put on paper.</source>
        <translation>El informe no se pudo pasar al papel.</translation>
    </message>
    <message>
        <location filename="../src/project/Coverings.cpp"/>
        <source>CARPET-%1</source>
        <translation>MOQUETA-%1</translation>
    </message>
    <message>
        <location filename="../src/project/Coverings.cpp"/>
        <source>TILE-%1</source>
        <translation>LOSETA-%1</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>%1 &quot;%2&quot;: %3</source>
        <translation>%1 «%2»: %3</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>A roll has no width: %1</source>
        <translation>Un rollo no tiene ancho: %1</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>The price &quot;%1&quot; of the roll %2: a comma is not taken. Write it with a point, as 18.50.</source>
        <translation>El precio «%1» del rollo %2: no se admite la coma. Escríbalo con punto, como 18.50.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>a comma is not taken. Write the length as 12ft6in, 9.5in, 366cm or 3.66m.</source>
        <translation>no se admite la coma. Escriba la medida como 12ft6in, 9.5in, 366cm o 3.66m.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>the price must be a number of 0 or more.</source>
        <translation>el precio debe ser un número igual o mayor que 0.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderEntry.cpp"/>
        <source>write the length as 12ft6in, 18in, 366cm or 3.66m.</source>
        <translation>escriba la medida como 12ft6in, 18in, 366cm o 3.66m.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be between %2 and %3.</source>
        <translation>%1 debe estar entre %2 y %3.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be whole centimetres: give it, and the rooms, in the units of the pattern.</source>
        <translation>%1 debe darse en centímetros enteros: indique el rapport y las estancias en las unidades del dibujo.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>%1 must be whole inches: give it, and the rooms, in the units of the pattern.</source>
        <translation>%1 debe darse en pulgadas enteras: indique el rapport y las estancias en las unidades del dibujo.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A half drop needs a pattern repeat along.</source>
        <translation>El medio salto necesita un rapport a lo largo.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A half drop needs an even pattern repeat along.</source>
        <translation>El medio salto necesita un rapport a lo largo que sea par.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A roll must be between %1 and %2 wide.</source>
        <translation>Un rollo debe tener entre %1 y %2 de ancho.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>A strip may have 1 to %1 parts.</source>
        <translation>Una tira puede tener de 1 a %1 tramos.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>At most %1 rolls can be compared.</source>
        <translation>Se pueden comparar %1 rollos como máximo.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>Improved: %1, %2</source>
        <translation>Mejorado: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The lay must be down, cross or both.</source>
        <translation>La colocación debe ser a lo largo (down), de través (cross) o ambas (both).</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern across</source>
        <translation>El dibujo a lo ancho</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern along</source>
        <translation>El dibujo a lo largo</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The pattern drift must be 0 to 10 percent.</source>
        <translation>La deriva del dibujo debe ser de 0 a 10 por ciento.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The price of the roll %1 must be a number of 0 or more.</source>
        <translation>El precio del rollo %1 debe ser un número igual o mayor que 0.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The roll</source>
        <translation>El rollo</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The search may take 0 to 3600 seconds.</source>
        <translation>La búsqueda puede durar de 0 a 3600 segundos.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The selvage</source>
        <translation>El orillo</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The shortest part</source>
        <translation>El tramo mínimo</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The step</source>
        <translation>El paso</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The trim across</source>
        <translation>La demasía a lo ancho</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>The trim along</source>
        <translation>La demasía a lo largo</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>There is no roll to order from: name its width.</source>
        <translation>No hay rollo del que pedir: indique su ancho.</translation>
    </message>
    <message>
        <location filename="../src/project/OrderRequest.cpp"/>
        <source>this one is %1</source>
        <translation>esta mide %1</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK</source>
        <translation>   N.º      ANCHO   LARGO       yd²      TIPO    RODAPIÉ  LARGO      N.º       NOTA</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK</source>
        <translation>   N.º      ANCHO   LARGO       m²       TIPO    RODAPIÉ  LARGO      N.º       NOTA</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source> ITEM                                      SQ.     CARPET             BASE         ROOM</source>
        <translation> POS.                                    SUPERF.                      RODAPIÉ      ESTANCIA</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>PROJECT NAME:   %1</source>
        <translation>PROYECTO:   %1</translation>
    </message>
    <message>
        <location filename="../src/project/Report.cpp"/>
        <source>The wall base of room %1 is longer than %2 %3: correct its size or its base.</source>
        <translation>El rodapié de la estancia %1 mide más de %2 %3: corrija sus medidas o su rodapié.</translation>
    </message>
    <message>
        <location filename="../src/project/Report.h"/>
        <source>ENTERED DATA REPORT</source>
        <translation>INFORME DE DATOS</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>change room %1</source>
        <translation>cambiar estancia %1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>change rooms</source>
        <translation>cambiar estancias</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>delete room %1</source>
        <translation>borrar estancia %1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomChange.cpp"/>
        <source>new room %1</source>
        <translation>estancia nueva %1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Example1: L2W1 - means 2 x Length + 1 x Width</source>
        <translation>Ejemplo 1: L2W1 - significa 2 x largo + 1 x ancho</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Room length:<byte value="xd"/>
%1</source>
        <translation>Largo de la estancia:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Room width:<byte value="xd"/>
%1</source>
        <translation>Ancho de la estancia:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>Sorry, you entered wrong string for base</source>
        <translation>El texto del rodapié es incorrecto</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The length is empty: a new room needs both its sizes.</source>
        <translation>El largo está vacío: una estancia nueva necesita las dos medidas.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The length of a room can be %1 %2 at most.</source>
        <translation>El largo de una estancia puede ser de %1 %2 como máximo.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The width is empty: a new room needs both its sizes.</source>
        <translation>El ancho está vacío: una estancia nueva necesita las dos medidas.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>The width of a room can be %1 %2 at most.</source>
        <translation>El ancho de una estancia puede ser de %1 %2 como máximo.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.cpp"/>
        <source>You should enter L or W with 1 or 2 to be calculated</source>
        <translation>Escriba L o W con 1 o 2 para que se calcule</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>Example2: W2 - means 2 x Width and Length is not calculated.</source>
        <translation>Ejemplo 2: W2 - significa 2 x ancho, y el largo no se cuenta.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>Example2: W21 - means 2 x Width and Length is not calculated.</source>
        <translation>Ejemplo 2: W21 - significa 2 x ancho, y el largo no se cuenta.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>The Size of room is not correct. Data is not changed</source>
        <translation>La medida de la estancia no es correcta. Los datos no se cambian</translation>
    </message>
    <message>
        <location filename="../src/project/RoomEntry.h"/>
        <source>The project is full: it can hold 501 rooms.</source>
        <translation>El proyecto está lleno: caben 501 estancias.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ALL</source>
        <translation>TODO</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>BASE</source>
        <translation>RODAPIÉ</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>COVERING</source>
        <translation>MATERIAL</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ITEM</source>
        <translation>POS.</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>LENGTH</source>
        <translation>LARGO</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>New room</source>
        <translation>Estancia nueva</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>New room, half typed</source>
        <translation>Estancia nueva, a medio escribir</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>REMARK</source>
        <translation>NOTA</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>ROOM</source>
        <translation>ESTANCIA</translation>
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
        <translation>TIPO</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <source>WIDTH</source>
        <translation>ANCHO</translation>
    </message>
    <message>
        <location filename="../src/project/RoomList.cpp"/>
        <location filename="../src/screens/rooms/RoomListFrame.cpp"/>
        <location filename="../src/screens/rooms/RoomTable.cpp"/>
        <source>ROOMS</source>
        <translation>ESTANCIAS</translation>
    </message>
    <message>
        <location filename="../src/project/RoomSize.cpp"/>
        <source>centimetres</source>
        <translation>centímetros</translation>
    </message>
    <message>
        <location filename="../src/project/RoomSize.cpp"/>
        <source>inches</source>
        <translation>pulgadas</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 is dropped: for %2 type %3</source>
        <translation>%1 se omite: para %2 escriba %3</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1 on from %2</source>
        <translation>%1 después de %2</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>%1: type the number alone, such as %2</source>
        <translation>%1: escriba solo el número, por ejemplo %2</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>A sign is not taken</source>
        <translation>No se admite el signo</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <source>beside %1</source>
        <translation>junto a %1</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <location filename="../src/order/OrderStrips.cpp"/>
        <location filename="../src/order/RollPlan.cpp"/>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>room %1</source>
        <translation>estancia %1</translation>
    </message>
    <message>
        <location filename="../src/project/SizeNotes.cpp"/>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>ABOUT</source>
        <translation>ACERCA DE</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>About</source>
        <translation>Acerca del programa</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Configuration file</source>
        <translation>Archivo de configuración</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Drafts</source>
        <translation>Borradores</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <location filename="../src/screens/AboutWindow.cpp"/>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <location filename="../src/screens/rooms/ReportFrame.cpp"/>
        <source>&amp;CLOSE</source>
        <translation>&amp;CERRAR</translation>
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
        <translation>El programa necesita una resolución de pantalla de 800 X 600 o superior<byte value="xd"/>
¡Cambie la resolución de la pantalla!</translation>
    </message>
    <message>
        <location filename="../src/screens/DraftKeeper.cpp"/>
        <source>What is not saved could not be kept. %1</source>
        <translation>Lo que no está guardado no se pudo conservar. %1</translation>
    </message>
    <message>
        <location filename="../src/screens/Guard.cpp"/>
        <source>The reason is not known.</source>
        <translation>No se conoce la causa.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;ABOUT</source>
        <translation>&amp;ACERCA DE</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;FIND NEXT</source>
        <translation>&amp;BUSCAR</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>&amp;WORD</source>
        <translation>&amp;PALABRA</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>GUIDE</source>
        <translation>GUÍA</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>The guide could not be searched.</source>
        <translation>No se pudo buscar en la guía.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>The guide does not have this word.</source>
        <translation>Esta palabra no está en la guía.</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <source>This is not in the guide, and the program opens nothing else: %1</source>
        <translation>Esto no está en la guía, y el programa no abre nada más: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/GuideWindow.cpp"/>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The text could not be shown.</source>
        <translation>No se pudo mostrar el texto.</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.cpp"/>
        <source>E&amp;NTERED IN FEET</source>
        <translation>I&amp;NTRODUCIDO EN PIES</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.cpp"/>
        <source>E&amp;NTERED IN METRIC</source>
        <translation>I&amp;NTRODUCIDO EN MÉTRICO</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.h"/>
        <source>Data is saved</source>
        <translation>Los datos están guardados</translation>
    </message>
    <message>
        <location filename="../src/screens/OpenProject.h"/>
        <source>The project could not be saved.</source>
        <translation>No se pudo guardar el proyecto.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>One more job that waited behind it was not printed either.</source>
        <comment>%n more jobs that waited behind it were not printed either.</comment>
        <translation>
            <numerusform>Otro trabajo que esperaba detrás tampoco se imprimió.</numerusform>
            <numerusform>Otros %n trabajos que esperaban detrás tampoco se imprimieron.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or press SAVE AS and choose &quot;%1&quot;.</source>
        <translation>O pulse GUARDAR COMO y elija «%1».</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or right-click what is shown and choose &quot;%1&quot;.</source>
        <translation>O haga clic con el botón derecho en lo que se muestra y elija «%1».</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or show it again, right-click it and choose &quot;%1&quot;.</source>
        <translation>O vuelva a mostrarlo, haga clic en ello con el botón derecho y elija «%1».</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.cpp"/>
        <source>Or show the order again, press SAVE AS and choose &quot;%1&quot;.</source>
        <translation>O vuelva a mostrar el pedido, pulse GUARDAR COMO y elija «%1».</translation>
    </message>
    <message>
        <location filename="../src/screens/PrintQueue.h"/>
        <source>Printing ...</source>
        <translation>Imprimiendo...</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>Nothing was made.</source>
        <translation>No se creó nada.</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>The program could not be started.</source>
        <translation>No se pudo iniciar el programa.</translation>
    </message>
    <message>
        <location filename="../src/screens/Program.cpp"/>
        <source>There is no backup of the data as it was before this change.</source>
        <translation>No hay copia de seguridad de los datos anteriores a este cambio.</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.cpp"/>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.cpp"/>
        <source>The file %1 cannot be written: %2</source>
        <translation>El archivo %1 no se puede escribir: %2</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;CSV</source>
        <translation>Guardar como &amp;CSV</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;DXF</source>
        <translation>Guardar como &amp;DXF</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;PDF</source>
        <translation>Guardar como &amp;PDF</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as &amp;SVG</source>
        <translation>Guardar como &amp;SVG</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveAs.h"/>
        <source>Save as spreadsheet (&amp;XLSX)</source>
        <translation>Guardar como hoja de cálculo (&amp;XLSX)</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Another program has changed the project %1 since it was opened here.<byte value="xd"/>
What that program stored is lost when you replace it.</source>
        <translation>Otro programa ha cambiado el proyecto %1 desde que se abrió aquí.<byte value="xd"/>
Lo que guardó ese programa se pierde si usted lo sustituye.</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Enter the new project name</source>
        <translation>Nombre del nuevo proyecto</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Replace it</source>
        <translation>Sustituirlo</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>Save it as a new project</source>
        <translation>Guardarlo como proyecto nuevo</translation>
    </message>
    <message>
        <location filename="../src/screens/SaveProject.cpp"/>
        <source>The project %1 is no longer there: another program has renamed or deleted it.<byte value="xd"/>
Its rooms can be saved as a new project.</source>
        <translation>El proyecto %1 ya no está: otro programa le cambió el nombre o lo borró.<byte value="xd"/>
Sus estancias se pueden guardar como proyecto nuevo.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>GUIDE (F1)</source>
        <translation>GUÍA (F1)</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The guide could not be shown.</source>
        <translation>No se pudo mostrar la guía.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The menu could not be opened.</source>
        <translation>No se pudo abrir el menú.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The screen could not be shown.</source>
        <translation>No se pudo mostrar la pantalla.</translation>
    </message>
    <message>
        <location filename="../src/screens/Screen.cpp"/>
        <location filename="../src/screens/TitledScreen.cpp"/>
        <source>The screen could not be arranged.</source>
        <translation>No se pudo organizar la pantalla.</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <location filename="../src/screens/ToolkitWords.cpp"/>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;CANCEL</source>
        <translation>&amp;CANCELAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;FEET</source>
        <translation>P&amp;IES</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;MATCH PATTERN</source>
        <translation>CASAR DIBU&amp;JO</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>&amp;WIDTH:</source>
        <translation>A&amp;NCHO:</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>CARPET - &amp;%1</source>
        <translation>MOQUETA - &amp;%1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>CARPET WIDT&amp;H OTHER</source>
        <translation>&amp;OTRO ANCHO</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>Estimate choices</source>
        <translation>Opciones del cálculo</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>I&amp;NCHES</source>
        <translation>PULGA&amp;DAS</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>L&amp;AST CHOICES</source>
        <translation>ÚLTIM&amp;AS OPCIONES</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>LEN&amp;GTH:</source>
        <translation>LA&amp;RGO:</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <source>The choice could not be shown.</source>
        <translation>No se pudieron mostrar las opciones.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;DOWN LAY</source>
        <translation>A LO &amp;LARGO</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>CROSS &amp;LAY</source>
        <translation>DE TRAVÉ&amp;S</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ChoicePanel.cpp"/>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>INCHES</source>
        <translation>PULGADAS</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>&amp;PASTE CUTS</source>
        <translation>PEGAR LIS&amp;TA</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>&amp;REDRAW</source>
        <translation>REDI&amp;BUJAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>ESTIMATE FOR PROJECT: %1</source>
        <translation>CÁLCULO DEL PROYECTO: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>No better layout was found.</source>
        <translation>No se encontró una disposición mejor.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>No better layout was found: %1.</source>
        <translation>No se encontró una disposición mejor: %1.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>PROJ: %1</source>
        <translation>PROY: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The estimate could not be made.</source>
        <translation>No se pudo hacer el cálculo.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The layout could not be drawn.</source>
        <translation>No se pudo dibujar la disposición.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The layout could not be improved.</source>
        <translation>No se pudo mejorar la disposición.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The order could not be opened.</source>
        <translation>No se pudo abrir el pedido.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The picture could not be saved.</source>
        <translation>No se pudo guardar la imagen.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>The whole roll with its list, or the drawing: key D</source>
        <translation>El rollo entero con su lista, o el dibujo: tecla D</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <source>There is not data in the database</source>
        <translation>No hay datos en la base de datos</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;ESTIMATE</source>
        <translation>CALC&amp;ULAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/ReportFrame.cpp"/>
        <source>PR&amp;INT</source>
        <translation>IM&amp;PRIMIR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;BACK</source>
        <translation>&amp;VOLVER</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <location filename="../src/screens/Screen.cpp"/>
        <source>The screen could not be closed.</source>
        <translation>No se pudo cerrar la pantalla.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/EstimateScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;SAVE</source>
        <translation>&amp;GUARDAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>&amp;UNDO</source>
        <translation>DES&amp;HACER</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>IMPRO&amp;VE</source>
        <translation>&amp;MEJORAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImproveButtons.cpp"/>
        <source>IMPRO&amp;VE: %1</source>
        <translation>&amp;MEJORAR: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Fills so far: %1</source>
        <translation>Rellenos hasta ahora: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>IMPROVE</source>
        <translation>MEJORAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>LEAVE IT</source>
        <translation>DEJARLA</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Looking for a better layout</source>
        <translation>Buscando una disposición mejor</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>No layout takes less than: %1</source>
        <translation>Ninguna disposición necesita menos de: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>STOP</source>
        <translation>PARAR</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>TAKE IT</source>
        <translation>TOMARLA</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>Time used</source>
        <translation>Tiempo empleado</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/ImprovePanel.cpp"/>
        <source>can be laid instead of the layout shown.</source>
        <translation>se puede colocar en lugar de la disposición mostrada.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>&amp;Continue</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>*ESTIMATION OPTIONS*</source>
        <translation>*OPCIONES DE CÁLCULO*</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>ESTIMATING FILLS MENU</source>
        <translation>CÁLCULO DE RELLENOS</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>MAXIMUM NUMBER OF PIECES PER FILL</source>
        <translation>MÁXIMO DE TRAMOS POR RELLENO</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>MINIMUM CUT LENGTH</source>
        <translation>LARGO MÍNIMO DE CORTE</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>No part of a fill becomes shorter than %1</source>
        <translation>Ningún tramo de un relleno queda más corto que %1</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>SELECT</source>
        <translation>ELIJA</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>Search progress</source>
        <translation>Avance de la búsqueda</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>The estimate could not be emptied.</source>
        <translation>No se pudo vaciar el cálculo.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/OptionsScreen.cpp"/>
        <source>The fills could not be laid out.</source>
        <translation>No se pudieron disponer los rellenos.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>Layout drawing</source>
        <translation>Dibujo de la disposición</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>The layout could not be shown.</source>
        <translation>No se pudo mostrar la disposición.</translation>
    </message>
    <message>
        <location filename="../src/screens/estimate/PictureBox.cpp"/>
        <source>Zoom: + and −, or Ctrl and wheel.  0: actual size.  Double click: everything.</source>
        <translation>Zoom: + y −, o Ctrl y rueda.  0: tamaño real.  Doble clic: todo.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The project %1 could not be loaded. %2</source>
        <translation>No se pudo cargar el proyecto %1. %2</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The project %1 is not stored as it should be:</source>
        <translation>El proyecto %1 no está guardado como debería:</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuLoad.cpp"/>
        <source>The size of a room: %1</source>
        <translation>La medida de una estancia: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;BACKWARD</source>
        <translation>&amp;ATRÁS</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;Metric</source>
        <translation>&amp;Métrico</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;TAKE BACK ORDER OF %1</source>
        <translation>&amp;RECUPERAR PEDIDO DEL %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>&amp;TAKE BACK ROOMS OF %1</source>
        <translation>&amp;RECUPERAR ESTANCIAS DEL %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>*SOLVANE OPTIONS*</source>
        <translation>*OPCIONES DE SOLVANE*</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>EA&amp;RLIER</source>
        <translation>AN&amp;TERIORES</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>ENTER/E&amp;DIT DATA</source>
        <translation>INTRODUCIR &amp;DATOS</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>From its next start on the program speaks this language: %1</source>
        <translation>A partir del próximo inicio el programa hablará este idioma: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>NOT SAVED</source>
        <translation>SIN GUARDAR</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>OPERATION MENU</source>
        <translation>MENÚ PRINCIPAL</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>TILES ONLY</source>
        <translation>SOLO LOSETAS</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The language could not be chosen.</source>
        <translation>No se pudo elegir el idioma.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The projects could not be shown.</source>
        <translation>No se pudieron mostrar los proyectos.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The rooms could not be opened.</source>
        <translation>No se pudieron abrir las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The rooms could not be taken back.</source>
        <translation>No se pudieron recuperar las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>The units could not be changed.</source>
        <translation>No se pudieron cambiar las unidades.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>a room that was being typed</source>
        <translation>una estancia que se estaba escribiendo</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>take back rooms of %1</source>
        <translation>recuperar estancias del %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <source>the choices of an order</source>
        <translation>las opciones de un pedido</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The program could not be ended.</source>
        <translation>No se pudo cerrar el programa.</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>NOT KEPT: %1</source>
        <translation>SIN CONSERVAR: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The estimate could not be opened.</source>
        <translation>No se pudo abrir el cálculo.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/menu/MenuScreen.cpp"/>
        <location filename="../src/tools/DataCommands.cpp"/>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>%n room</source>
        <comment>%n rooms</comment>
        <translation>
            <numerusform>%n estancia</numerusform>
            <numerusform>%n estancias</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Above least %</source>
        <translation>Sobre mínimo %</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Comparison of rolls and lays</source>
        <translation>Comparación de rollos y colocaciones</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Every roll and lay is refused</source>
        <translation>Todos los rollos y colocaciones se rechazan</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>Take</source>
        <translation>Tomar</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>best</source>
        <translation>mejor</translation>
    </message>
    <message>
        <location filename="../src/screens/order/ComparisonPanel.cpp"/>
        <source>chosen</source>
        <translation>elegido</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;CARPET</source>
        <translation>&amp;MOQUETA</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;JOIN ROOMS NO WIDER THAN THE ROLL</source>
        <translation>PARTIR ESTA&amp;NCIAS QUE CABEN EN EL ROLLO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;PARTS AT MOST</source>
        <translation>TRAMOS (MÁ&amp;X.)</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>&amp;ROLLS</source>
        <translation>&amp;ROLLOS</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>Across is the distance to the next column of the pattern. With a half drop, which sets it half a repeat further along, that is half the repeat of makers who name the whole design.</source>
        <translation>El rapport a lo ancho es la distancia a la siguiente columna del dibujo. Con medio salto, que la pone medio rapport más adelante, es la mitad del rapport de los fabricantes que dan el dibujo completo.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>DRIFT %</source>
        <translation>DERIVA %</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>HAL&amp;F DROP</source>
        <translation>M&amp;EDIO SALTO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>Order choices</source>
        <translation>Opciones del pedido</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>PATT&amp;ERN ALONG</source>
        <translation>DIBU&amp;JO LARGO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>PATTER&amp;N ACROSS</source>
        <translation>DI&amp;BUJO ANCHO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>REMO&amp;VE ROLL</source>
        <translation>&amp;QUITAR ROLLO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>S&amp;HORTEST PART</source>
        <translation>&amp;TRAMO MÍNIMO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>SECONDS</source>
        <translation>SEGUNDOS</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>SELVA&amp;GE</source>
        <translation>&amp;ORILLO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>STEP</source>
        <translation>PASO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>TRIM &amp;ALONG</source>
        <translation>&amp;DEMASÍA LARGO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderChoicePanel.cpp"/>
        <source>TRIM ACR&amp;OSS</source>
        <translation>DEMASÍA ANC&amp;HO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderOutput.cpp"/>
        <source>Save as &amp;JSON</source>
        <translation>Guardar como &amp;JSON</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderOutput.cpp"/>
        <source>Save as &amp;text</source>
        <translation>Guardar como &amp;texto</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>&amp;SAVE AS</source>
        <translation>&amp;GUARDAR COMO</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>CHOICES</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>CO&amp;MPARE</source>
        <translation>&amp;COMPARAR</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>COMPARISON</source>
        <translation>COMPARACIÓN</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Compared.</source>
        <translation>Comparado.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Comparing. STOP keeps the best so far.</source>
        <translation>Comparando. PARAR conserva lo mejor hasta ahora.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Every roll and lay is refused: the notes say why.</source>
        <translation>Todos los rollos y colocaciones se rechazan: las notas dicen por qué.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>ORDER FOR PROJECT: %1</source>
        <translation>PEDIDO DEL PROYECTO: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>OUT OF DATE: the choices have changed. Press COMPARE.</source>
        <translation>DESFASADO: las opciones han cambiado. Pulse COMPARAR.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Parts of the screen</source>
        <translation>Partes de la pantalla</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>S&amp;TOP</source>
        <translation>PAR&amp;AR</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>Stopped: the best so far.</source>
        <translation>Parado: lo mejor hasta ahora.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The choices could not be taken.</source>
        <translation>No se pudieron aplicar las opciones.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The order could not be made.</source>
        <translation>No se pudo hacer el pedido.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The order could not be saved.</source>
        <translation>No se pudo guardar el pedido.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The request that is kept for this carpet is in feet and inches and is not used. What you change takes its place.</source>
        <translation>La petición guardada para esta moqueta está en pies y pulgadas y no se usa. Lo que usted cambie ocupará su lugar.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>The request that is kept for this carpet is in metric and is not used. What you change takes its place.</source>
        <translation>La petición guardada para esta moqueta es métrica y no se usa. Lo que usted cambie ocupará su lugar.</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Price per
sq. m</source>
        <translation>Precio por
m²</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Price per
sq. yd</source>
        <translation>Precio por
yd²</translation>
    </message>
    <message>
        <location filename="../src/screens/order/RollTable.cpp"/>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>Please select a month or a directory.</source>
        <translation>Elija un mes o un directorio.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>The Project Name: %1 has been used<byte value="xd"/>
Please change to another name!</source>
        <translation>El nombre de proyecto %1 ya está en uso<byte value="xd"/>
¡Elija otro nombre!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectChoice.cpp"/>
        <source>The project is no longer there. Please select it again!</source>
        <translation>El proyecto ya no está. ¡Elíjalo de nuevo!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source> CURRENT SETTING</source>
        <translation> SELECCIÓN ACTUAL</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;DIRECTORIES</source>
        <translation>&amp;DIRECTORIOS</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;EXIT</source>
        <translation>C&amp;ERRAR</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;MONTHS</source>
        <translation>&amp;MESES</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;NEW PROJECT</source>
        <translation>&amp;NUEVO PROYECTO</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;PROJECTS</source>
        <translation>&amp;PROYECTOS</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>&amp;SELECT PROJECT</source>
        <translation>ELE&amp;GIR PROYECTO</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>D&amp;ONE</source>
        <translation>&amp;LISTO</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>DIRECTORY:%1</source>
        <translation>DIRECTORIO: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>E&amp;XIT</source>
        <translation>&amp;SALIR</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>NEW DIRECTOR&amp;Y</source>
        <translation>NUEVO DIRE&amp;CTORIO</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>No Project Selected</source>
        <translation>Ningún proyecto elegido</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>PROJECT</source>
        <translation>PROYECTO</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectPanels.cpp"/>
        <source>PROJECT:%1</source>
        <translation>PROYECTO: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>*PROJECT SELECTION*</source>
        <translation>*SELECCIÓN DE PROYECTO*</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Are you sure to delete this project?<byte value="xd"/>
Delete operation will make the data of the project lost!</source>
        <translation>¿Seguro que quiere borrar este proyecto?<byte value="xd"/>
¡Al borrarlo se perderán los datos del proyecto!</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new directory name</source>
        <translation>Nombre del nuevo directorio</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new name you want to change to:</source>
        <translation>Nombre nuevo:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Enter the new project name you want to change to:</source>
        <translation>Nombre nuevo del proyecto:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be deleted.</source>
        <translation>No se pudo borrar el directorio.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be made.</source>
        <translation>No se pudo crear el directorio.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The directory could not be renamed.</source>
        <translation>No se pudo cambiar el nombre del directorio.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be deleted.</source>
        <translation>No se pudo borrar el proyecto.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be renamed.</source>
        <translation>No se pudo cambiar el nombre del proyecto.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The project could not be selected.</source>
        <translation>No se pudo elegir el proyecto.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>The projects could not be listed.</source>
        <translation>No se pudieron enumerar los proyectos.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/ProjectScreen.cpp"/>
        <source>Warning: Delete directory will make data under this directory lost!<byte value="xd"/>
Do you want to continue deleting?</source>
        <translation>Atención: ¡al borrar el directorio se perderán los datos que contiene!<byte value="xd"/>
¿Quiere borrarlo de todos modos?</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Centimetres</source>
        <translation>Centímetros</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Feet and inches</source>
        <translation>Pies y pulgadas</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>Name of the project:</source>
        <translation>Nombre del proyecto:</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>No project is made of %1.</source>
        <translation>De %1 no se hace ningún proyecto.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>The project could not be made.</source>
        <translation>No se pudo crear el proyecto.</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>The rooms of %1 become a new project.<byte value="xd"/>
What are their sizes in?</source>
        <translation>Las estancias de %1 pasan a ser un proyecto nuevo.<byte value="xd"/>
¿En qué unidades están sus medidas?</translation>
    </message>
    <message>
        <location filename="../src/screens/projects/RoomsAsProject.cpp"/>
        <source>There is no room in it.</source>
        <translation>No contiene ninguna estancia.</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1, %2 by %3, %4, from %5 to %6</source>
        <translation>%1, %2 por %3, %4, de %5 a %6</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1: %2  %3  %4 to %5</source>
        <translation>%1: %2  %3  %4 a %5</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>%1: %2  %3  %4 to %5, across %6</source>
        <translation>%1: %2  %3  %4 a %5, a lo ancho %6</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/roll/RollChart.cpp"/>
        <source>Roll %1 wide, %2 long, %n piece</source>
        <comment>Roll %1 wide, %2 long, %n pieces</comment>
        <translation>
            <numerusform>Rollo de %1 de ancho, %2 de largo, %n pieza</numerusform>
            <numerusform>Rollo de %1 de ancho, %2 de largo, %n piezas</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollList.cpp"/>
        <source>Cut list</source>
        <translation>Lista de corte</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollView.cpp"/>
        <source>The roll could not be shown.</source>
        <translation>No se pudo mostrar el rollo.</translation>
    </message>
    <message>
        <location filename="../src/screens/roll/RollView.cpp"/>
        <source>Whole roll</source>
        <translation>Rollo entero</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;DELETE </source>
        <translation>&amp;BORRAR </translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;NEXT ROOM</source>
        <translation>&amp;SIGUIENTE</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;PREVIOUS ROOM</source>
        <translation>A&amp;NTERIOR</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>&amp;REPORT</source>
        <translation>&amp;INFORME</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>B&amp;ASE</source>
        <translation>R&amp;ODAPIÉ</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>CARPE&amp;T TYPE</source>
        <translation>&amp;MATERIAL</translation>
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
        <translation>EJEMPLO: W2L1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>FEET</source>
        <translation>PIES</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ITEM INFO</source>
        <translation>DATOS</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ME&amp;TER</source>
        <translation>M&amp;ETRO</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>PROJECT ITEM No.</source>
        <translation>N.º DE POSICIÓN</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>PROJECT: %1</source>
        <translation>PROYECTO: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>REMAR&amp;K</source>
        <translation>NO&amp;TA</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>RO&amp;OM No.</source>
        <translation>N.º &amp;ESTANCIA</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM   &amp;WIDTH</source>
        <translation>ANC&amp;HO</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM &amp;LENGTH</source>
        <translation>&amp;LARGO</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>ROOM SIZE</source>
        <translation>MEDIDAS</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomEntryFrame.cpp"/>
        <source>The text could not be tested.</source>
        <translation>No se pudo comprobar el texto.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomOutput.cpp"/>
        <source>Save as CS&amp;V</source>
        <translation>Guardar como CS&amp;V</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>paste %n room</source>
        <comment>paste %n rooms</comment>
        <translation>
            <numerusform>pegar %n estancia</numerusform>
            <numerusform>pegar %n estancias</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.cpp"/>
        <source>there is no room below the headings</source>
        <translation>no hay ninguna estancia bajo los encabezados</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>&amp;Paste rooms</source>
        <translation>&amp;Pegar estancias</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>The rooms are pasted. Some sizes are rounded:</source>
        <translation>Las estancias están pegadas. Algunas medidas están redondeadas:</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomPaste.h"/>
        <source>The rooms could not be pasted: nothing was changed.</source>
        <translation>No se pudieron pegar las estancias: no se cambió nada.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>*EDIT DATA*</source>
        <translation>*EDITAR DATOS*</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>DRAWING</source>
        <translation>DIBUJO</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Really want to delete current data?</source>
        <translation>¿Seguro que quiere borrar los datos actuales?</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Room %1 is not stored: it needs a width and a length.</source>
        <translation>La estancia %1 no está guardada: necesita un ancho y un largo.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>S&amp;HOW FORM</source>
        <translation>VE&amp;R FICHA</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>S&amp;HOW LIST</source>
        <translation>VE&amp;R LISTA</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The list of the rooms could not be saved.</source>
        <translation>No se pudo guardar la lista de estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be closed.</source>
        <translation>No se pudo cerrar el informe.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be made.</source>
        <translation>No se pudo hacer el informe.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be printed.</source>
        <translation>No se pudo imprimir el informe.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The report could not be saved.</source>
        <translation>No se pudo guardar el informe.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The room could not be deleted.</source>
        <translation>No se pudo borrar la estancia.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The room could not be stored.</source>
        <translation>No se pudo guardar la estancia.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be pasted.</source>
        <translation>No se pudieron pegar las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be put back.</source>
        <translation>No se pudieron restablecer las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>The rooms could not be shown.</source>
        <translation>No se pudieron mostrar las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Then click where the cut list is to stand, or press Enter for the top left of the view.</source>
        <translation>Haga clic después donde deba ir la lista de corte, o pulse Intro para la parte superior izquierda de la vista.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>There is no data to estimate. Please fill in the room information before estimating.</source>
        <translation>No hay nada que calcular. Introduzca antes las estancias.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <source>Typed before for a new room, and not stored. DELETE empties the fields.</source>
        <translation>Escrito antes para una estancia nueva y sin guardar. BORRAR vacía los campos.</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomScreen.cpp"/>
        <location filename="../src/screens/order/OrderScreen.cpp"/>
        <source>ROLL</source>
        <translation>ROLLO</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/RoomTotals.cpp"/>
        <source>TOTALS BY COVERING</source>
        <translation>TOTALES POR MATERIAL</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <location filename="../src/screens/rooms/UndoMenu.cpp"/>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 cannot be copied</source>
        <translation>La copia de seguridad %1 no se puede copiar</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 cannot be read</source>
        <translation>La copia de seguridad %1 no se puede leer</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The backup %1 is damaged (%2) and is not put in place. Take another one.</source>
        <translation>La copia de seguridad %1 está dañada (%2) y no se pone en su lugar. Tome otra.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The database file %1 cannot be replaced: another program is using the database. Close that program and try again.</source>
        <translation>La base de datos %1 no se puede sustituir: otro programa la está usando. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 cannot be kept as %2: %3.</source>
        <translation>El archivo %1 no se puede conservar como %2: %3.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 is no backup of this program&apos;s data: it has no table %2.</source>
        <translation>El archivo %1 no es una copia de seguridad de los datos de este programa: le falta la tabla %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The file %1 is the database itself. Name a backup of it.</source>
        <translation>El archivo %1 es la propia base de datos. Indique una copia de seguridad de ella.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <source>The journal %1 cannot be set aside as %2.</source>
        <translation>El diario %1 no se puede apartar como %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Backups.cpp"/>
        <location filename="../src/store/RawRows.cpp"/>
        <source>The file cannot be read</source>
        <translation>El archivo no se puede leer</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 in %2 %3</source>
        <translation>%1 en %2 %3</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 of %2 and %3</source>
        <translation>%1 de %2 y %3</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1 under the number %2</source>
        <translation>%1 con el número %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>%1, all %2</source>
        <translation>%1, las %2</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>A change was cut off by a crash: %1 lies beside the file. The next program that opens the file takes that change back.</source>
        <translation>Un fallo interrumpió un cambio: %1 está junto al archivo. El próximo programa que abra el archivo deshará ese cambio.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Carpets with more than one request for an order, of which the last is read</source>
        <translation>Moquetas con más de una petición de pedido, de las que se lee la última</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Damaged: %1</source>
        <translation>Dañado: %1</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Directories with more than one row</source>
        <translation>Directorios con más de una fila</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Fields without their index, by which reading becomes slow</source>
        <translation>Campos sin su índice, con lo que la lectura se vuelve lenta</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>In the place of the table %1 is a view, which stores nothing.</source>
        <translation>En lugar de la tabla %1 hay una vista, que no guarda nada.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>In the place of the table %1 is one without row numbers.</source>
        <translation>En lugar de la tabla %1 hay una sin números de fila.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Indexes of another program that refuse a value which is there already</source>
        <translation>Índices de otro programa que rechazan un valor que ya existe</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects that no screen shows, since their directory is neither listed nor a month</source>
        <translation>Proyectos que ninguna pantalla muestra, porque su directorio no está en la lista ni es un mes</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects with more than one row</source>
        <translation>Proyectos con más de una fila</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Projects with more than one sheet, of which the first alone is used</source>
        <translation>Proyectos con más de una hoja, de las que solo vale la primera</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Requests for orders that cannot be read</source>
        <translation>Peticiones de pedido que no se pueden leer</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms beyond the number that the sheet tells, which nothing shows</source>
        <translation>Estancias más allá del número que indica la hoja y que no se muestran en ninguna parte</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms with more than one row, of which the last is read</source>
        <translation>Estancias con más de una fila, de las que se lee la última</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms without a row, which are read as empty</source>
        <translation>Estancias sin fila, que se leen como vacías</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rooms without a sheet, which nothing shows</source>
        <translation>Estancias sin hoja, que no se muestran en ninguna parte</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Rows of %1 without a sheet, which nothing reaches</source>
        <translation>Filas de %1 sin hoja, a las que nada llega</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Sheet numbers of more than one project, whose rooms cannot be told apart</source>
        <translation>Números de hoja de más de un proyecto, cuyas estancias no se pueden distinguir</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Sheets without a project</source>
        <translation>Hojas sin proyecto</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The database file %1 cannot be checked</source>
        <translation>La base de datos %1 no se puede comprobar</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 cannot be checked</source>
        <translation>No se puede comprobar la tabla %1</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 has no field %2.</source>
        <translation>La tabla %1 no tiene el campo %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>The table %1 is missing.</source>
        <translation>Falta la tabla %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>Triggers of another program, which may change or refuse what is stored</source>
        <translation>Disparadores de otro programa, que pueden cambiar o rechazar lo que se guarda</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>number %1 of no name</source>
        <translation>número %1 sin nombre</translation>
    </message>
    <message>
        <location filename="../src/store/Check.cpp"/>
        <source>row %1</source>
        <translation>fila %1</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>Cannot write %1: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>it is there already</source>
        <translation>ya existe</translation>
    </message>
    <message>
        <location filename="../src/store/Configuration.cpp"/>
        <source>the folder &quot;%1&quot; cannot be named in it</source>
        <translation>la carpeta «%1» no se puede indicar en él</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database file is damaged (%1). %2</source>
        <translation>la base de datos está dañada (%1). %2</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database file was moved, deleted or replaced while it was open. Put it back, or start the program again.</source>
        <translation>la base de datos se movió, borró o sustituyó mientras estaba abierta. Póngala de nuevo en su sitio, o vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the database is read-only. Allow writing to the file and to its folder.</source>
        <translation>la base de datos es de solo lectura. Permita escribir en el archivo y en su carpeta.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk does not confirm that it keeps the change, which may be there all the same. Look whether it is.</source>
        <translation>el disco no confirma que conserva el cambio, que puede estar ahí de todos modos. Compruébelo.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk is full. Free some space and try again.</source>
        <translation>el disco está lleno. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <source>the disk reports an error (%1).</source>
        <translation>el disco comunica un error (%1).</translation>
    </message>
    <message>
        <location filename="../src/store/Connection.cpp"/>
        <location filename="../src/store/FileLock.cpp"/>
        <source>another program is using the database. Close that program and try again.</source>
        <translation>otro programa está usando la base de datos. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <location filename="../src/store/DataFolder.cpp"/>
        <source> No data folder is named in %1.</source>
        <translation> En %1 no se indica ninguna carpeta de datos.</translation>
    </message>
    <message>
        <location filename="../src/store/DataFolder.h"/>
        <source>Couldn&apos;t find TarnWin.ini</source>
        <translation>No se encontró TarnWin.ini</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 cannot be read: %2.</source>
        <translation>La base de datos %1 no se puede leer: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is a folder. Correct its path or the data folder in %2.</source>
        <translation>La base de datos %1 es una carpeta. Corrija su ruta o la carpeta de datos en %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is a pipe, a device or a socket. Correct its path or the data folder in %2.</source>
        <translation>La base de datos %1 es una tubería, un dispositivo o un socket. Corrija su ruta o la carpeta de datos en %2.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is damaged (%2). %3</source>
        <translation>La base de datos %1 está dañada (%2). %3</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is empty. %2</source>
        <translation>La base de datos %1 está vacía. %2</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is in the older Jet format, which cannot be read. Keep it, make a new data folder with &quot;tarn-data create&quot; and enter its projects there.</source>
        <translation>La base de datos %1 está en el formato Jet antiguo, que no se puede leer. Consérvela, cree una carpeta de datos nueva con «tarn-data create» e introduzca allí sus proyectos.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is missing. Correct its path or the data folder in %2, or make a new data folder with &quot;tarn-data create&quot;.</source>
        <translation>Falta la base de datos %1. Corrija su ruta o la carpeta de datos en %2, o cree una carpeta de datos nueva con «tarn-data create».</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is not a database of this program. Correct its path or the data folder in %2, or put a backup in its place with &quot;tarn-data restore&quot;.</source>
        <translation>El archivo %1 no es una base de datos de este programa. Corrija su ruta o la carpeta de datos en %2, o ponga una copia de seguridad en su lugar con «tarn-data restore».</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 is read-only. Allow writing to it.</source>
        <translation>La base de datos %1 es de solo lectura. Permita escribir en ella.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>The database file %1 lies in a read-only folder. Allow writing to the folder.</source>
        <translation>La base de datos %1 está en una carpeta de solo lectura. Permita escribir en la carpeta.</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <source>a part of it is missing</source>
        <translation>falta una parte</translation>
    </message>
    <message>
        <location filename="../src/store/DatabaseFile.cpp"/>
        <location filename="../src/store/Connection.cpp"/>
        <source>The database file %1 cannot be opened</source>
        <translation>La base de datos %1 no se puede abrir</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <source>The folder %1 cannot be written: %2.</source>
        <translation>La carpeta %1 no se puede escribir: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <source>There is no folder for it: the environment names no home.</source>
        <translation>No hay carpeta para ello: el entorno no indica ninguna carpeta personal.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.cpp"/>
        <location filename="../src/files/OutputFile.cpp"/>
        <source>The file %1 cannot be written: %2.</source>
        <translation>El archivo %1 no se puede escribir: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Drafts.h"/>
        <source>There is no folder for drafts.</source>
        <translation>No hay carpeta para borradores.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>%1 The new file may be there all the same.</source>
        <translation>%1 El archivo nuevo puede estar ahí de todos modos.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>The file %1 cannot be made: %2.</source>
        <translation>El archivo %1 no se puede crear: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>The file %1 cannot be made: it has no name.</source>
        <translation>El archivo %1 no se puede crear: no tiene nombre.</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>it cannot be moved into its folder, or another program made it meanwhile</source>
        <translation>no se puede mover a su carpeta, u otro programa lo creó entretanto</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>it is there already and stays as it is</source>
        <translation>ya existe y se queda como está</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>its folder cannot be made</source>
        <translation>no se puede crear su carpeta</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>its folder takes no files</source>
        <translation>su carpeta no admite archivos</translation>
    </message>
    <message>
        <location filename="../src/store/FileInMaking.cpp"/>
        <source>something that is no file stands in its place</source>
        <translation>en su lugar hay algo que no es un archivo</translation>
    </message>
    <message>
        <location filename="../src/store/FileLock.cpp"/>
        <source>The database file %1 cannot be locked: %2</source>
        <translation>La base de datos %1 no se puede bloquear: %2</translation>
    </message>
    <message>
        <location filename="../src/store/Findings.cpp"/>
        <source>%1: %2 more.</source>
        <translation>%1: %2 más.</translation>
    </message>
    <message>
        <location filename="../src/store/Findings.cpp"/>
        <source>%1; and %2 more</source>
        <translation>%1; y %2 más</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>Make a folder for the program&apos;s data?<byte value="xd"/>
<byte value="xd"/>
Data folder: %1<byte value="xd"/>
It is named in a new file: %2<byte value="xd"/>
<byte value="xd"/>
With No nothing is made, and the program ends.</source>
        <translation>¿Crear una carpeta para los datos del programa?<byte value="xd"/>
<byte value="xd"/>
Carpeta de datos: %1<byte value="xd"/>
Se indica en un archivo nuevo: %2<byte value="xd"/>
<byte value="xd"/>
Con «No» no se crea nada y el programa termina.</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>The folder %1 cannot be made: %2.</source>
        <translation>La carpeta %1 no se puede crear: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/FirstStart.cpp"/>
        <source>Use the data that is in this folder already?<byte value="xd"/>
<byte value="xd"/>
Data folder: %1<byte value="xd"/>
It is named in a new file: %2<byte value="xd"/>
<byte value="xd"/>
With No nothing is made, and the program ends.</source>
        <translation>¿Usar los datos que ya hay en esta carpeta?<byte value="xd"/>
<byte value="xd"/>
Carpeta de datos: %1<byte value="xd"/>
Se indica en un archivo nuevo: %2<byte value="xd"/>
<byte value="xd"/>
Con «No» no se crea nada y el programa termina.</translation>
    </message>
    <message>
        <location filename="../src/store/Journal.cpp"/>
        <source>The database file %1 cannot be opened: %2 is no file. Remove it.</source>
        <translation>La base de datos %1 no se puede abrir: %2 no es un archivo. Elimínelo.</translation>
    </message>
    <message>
        <location filename="../src/store/Journal.cpp"/>
        <source>The database file %1 is not opened: beside it lies %2, the journal of a change that was cut off, and it belongs to another state of the file, as when a backup was copied over the file. Together they would give wrong rooms; nothing was changed. Put a backup in place with &quot;tarn-data restore BACKUP --database %1&quot;, which sets the journal aside.</source>
        <translation>La base de datos %1 no se abre: junto a ella está %2, el diario de un cambio interrumpido, y es de otro estado del archivo, como cuando se copia una copia de seguridad sobre él. Juntos darían estancias erróneas; no se cambió nada. Ponga una copia de seguridad en su lugar con «tarn-data restore BACKUP --database %1», que aparta el diario.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory name %1 has more than %2 characters.</source>
        <translation>El nombre de directorio %1 tiene más de %2 caracteres.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory name holds a line break or another control character.</source>
        <translation>El nombre de directorio contiene un salto de línea u otro carácter de control.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The directory needs a name.</source>
        <translation>El directorio necesita un nombre.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project name %1 has more than %2 characters.</source>
        <translation>El nombre de proyecto %1 tiene más de %2 caracteres.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project name holds a line break or another control character.</source>
        <translation>El nombre de proyecto contiene un salto de línea u otro carácter de control.</translation>
    </message>
    <message>
        <location filename="../src/store/Names.cpp"/>
        <source>The project needs a name.</source>
        <translation>El proyecto necesita un nombre.</translation>
    </message>
    <message>
        <location filename="../src/store/OrderRows.cpp"/>
        <source>Requests for orders that cannot be read, left out and dropped by SAVE: carpet %1.</source>
        <translation>Peticiones de pedido que no se pueden leer, omitidas y eliminadas al GUARDAR: moqueta %1.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.cpp"/>
        <source>There is one directory with the same name, change to other one!</source>
        <translation>Ya hay un directorio con ese nombre, ¡elija otro!</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.cpp"/>
        <source>There is one project with the same name, change to other one!</source>
        <translation>Ya hay un proyecto con ese nombre, ¡elija otro!</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectNames.h"/>
        <source>Sorry, the project name couldn&apos;t contain any of following characters:<byte value="xd"/>
   \/:*?&quot;&lt;&gt;|</source>
        <translation>El nombre del proyecto no puede contener ninguno de estos caracteres:<byte value="xd"/>
   \/:*?&quot;&lt;&gt;|</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>No database is open.</source>
        <translation>No hay ninguna base de datos abierta.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The change cannot be stored</source>
        <translation>El cambio no se puede guardar</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The change cannot be taken back</source>
        <translation>El cambio no se puede deshacer</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The database takes no change</source>
        <translation>La base de datos no admite cambios</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The name %1 cannot be used: a double quote stands inside it.</source>
        <translation>El nombre %1 no se puede usar: contiene unas comillas dobles.</translation>
    </message>
    <message>
        <location filename="../src/store/ProjectStore.cpp"/>
        <source>The project name %1 holds one of the characters %2.</source>
        <translation>El nombre de proyecto %1 contiene uno de los caracteres %2.</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>has more than %1 characters</source>
        <translation>tiene más de %1 caracteres</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>holds a character that no name may</source>
        <translation>contiene un carácter que ningún nombre puede tener</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>holds what no text may: a control character, U+FFFE, U+FFFF, or bytes that are not UTF-8</source>
        <translation>contiene lo que ningún texto puede tener: un carácter de control, U+FFFE, U+FFFF o bytes que no son UTF-8</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no number above 0</source>
        <translation>no es un número mayor que 0</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no text</source>
        <translation>no es un texto</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is no whole number from %1 to %2</source>
        <translation>no es un número entero de %1 a %2</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>is not as names are stored: in upper case, without blanks at its ends</source>
        <translation>no está como se guardan los nombres: en mayúsculas, sin espacios en los extremos</translation>
    </message>
    <message>
        <location filename="../src/store/RawRows.cpp"/>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <location filename="../src/store/Remedies.h"/>
        <source>Put a backup in its place with &quot;tarn-data restore&quot;, or save what can still be read of it with &quot;tarn-data repair&quot;.</source>
        <translation>Ponga una copia de seguridad en su lugar con «tarn-data restore», o salve con «tarn-data repair» lo que aún se pueda leer.</translation>
    </message>
    <message>
        <location filename="../src/store/Remedies.h"/>
        <source>Put a backup in its place with &quot;tarn-data restore&quot;.</source>
        <translation>Ponga una copia de seguridad en su lugar con «tarn-data restore».</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, behind row %2</source>
        <translation>%1, tras la fila %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, from the first row on</source>
        <translation>%1, desde la primera fila</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1, row %2</source>
        <translation>%1, fila %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>A change that a crash cut off is taken back.</source>
        <translation>Se deshace un cambio que quedó interrumpido por un fallo.</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Fields that were missing</source>
        <translation>Campos que faltaban</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Nothing can be read of the database file %1. %2</source>
        <translation>No se puede leer nada de la base de datos %1. %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Requests for an order that a later one of the carpet replaced, left out</source>
        <translation>Peticiones de pedido sustituidas por otra posterior de la misma moqueta, omitidas</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Requests for orders that cannot be read, left out</source>
        <translation>Peticiones de pedido que no se pueden leer, omitidas</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Rows of sheets that are not there, left out</source>
        <translation>Filas de hojas que no existen, omitidas</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Rows that cannot be read and are left out</source>
        <translation>Filas que no se pueden leer y se omiten</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Tables that cannot be read</source>
        <translation>Tablas que no se pueden leer</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>Tables that were missing and are empty now</source>
        <translation>Tablas que faltaban y ahora están vacías</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The database file cannot be read</source>
        <translation>La base de datos no se puede leer</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The file %1 cannot be made</source>
        <translation>El archivo %1 no se puede crear</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The file %1 cannot be made: it would not be sound. %2</source>
        <translation>El archivo %1 no se puede crear: no quedaría correcto. %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The journal beside the file belongs to another state of it and is not used.</source>
        <translation>El diario que hay junto al archivo es de otro estado de este y no se usa.</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>The tables cannot be listed</source>
        <translation>No se pueden enumerar las tablas</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>What another program put there, left out</source>
        <translation>Lo que otro programa puso ahí, omitido</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <source>field %1 of %2</source>
        <translation>campo %1 de %2</translation>
    </message>
    <message>
        <location filename="../src/store/Repair.cpp"/>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 takes no new row</source>
        <translation>%1 no admite una fila nueva</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1 became &quot;%2&quot;</source>
        <translation>%1 pasó a ser «%2»</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, now %2 in %3</source>
        <translation>%1, ahora %2 en %3</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, row %2 (%3)</source>
        <translation>%1, fila %2 (%3)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1, row %2 (%3, a second time)</source>
        <translation>%1, fila %2 (%3, por segunda vez)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>%1: %2 %3 became %4</source>
        <translation>%1: %2 %3 pasó a ser %4</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Directories that were made for projects which no screen showed</source>
        <translation>Directorios creados para proyectos que ninguna pantalla mostraba</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Names that were changed</source>
        <translation>Nombres que se cambiaron</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Projects for which no number was left, without their rooms</source>
        <translation>Proyectos para los que no quedaba número, sin sus estancias</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Projects that shared their rooms with others, and have them all now</source>
        <translation>Proyectos que compartían sus estancias con otros y ahora las tienen todas</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that could not be found and are empty now</source>
        <translation>Estancias que no se encontraron y ahora están vacías</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that their project did not show, which are in one of their own now</source>
        <translation>Estancias que su proyecto no mostraba y que ahora están en uno propio</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms that were stored twice alike</source>
        <translation>Estancias guardadas dos veces de forma idéntica</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rooms without a sheet, for which a project was made (in feet and inches: their units are not known)</source>
        <translation>Estancias sin hoja, para las que se creó un proyecto (en pies y pulgadas: sus unidades no se conocen)</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Rows that say nothing and were left out</source>
        <translation>Filas que no dicen nada y se omitieron</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Second sheets of a project, which became projects of their own</source>
        <translation>Segundas hojas de un proyecto, que pasaron a ser proyectos propios</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Sheets without a project, for which one was made</source>
        <translation>Hojas sin proyecto, para las que se creó uno</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Sheets without rooms that were left out</source>
        <translation>Hojas sin estancias que se omitieron</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <source>Values that were changed</source>
        <translation>Valores que se cambiaron</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>%1, room %2</source>
        <translation>%1, estancia %2</translation>
    </message>
    <message>
        <location filename="../src/store/RepairedData.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <source>number %1 of %2</source>
        <translation>número %1 de %2</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1  (at %2, %3 across)</source>
        <translation>%1  (en %2, %3 a lo ancho)</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is a whole length: empty the field beside it</source>
        <translation>%1 es una medida completa: vacíe el campo de al lado</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is not taken: type it like 3.66, 3.66m or 366cm</source>
        <translation>%1 no se entiende: escríbalo como 3.66, 3.66m o 366cm</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>%1 is not taken: type it like 6.5, 6 1/2&quot; or 12&apos;6&quot;</source>
        <translation>%1 no se entiende: escríbalo como 6.5, 6 1/2&quot; o 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>A comma is not taken: type %1</source>
        <translation>No se admite la coma: escriba %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>A number stored in the room row with ObjNum %1 is too large.</source>
        <translation>Un número de la fila de estancia con ObjNum %1 es demasiado grande.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Beyond the end of the project, dropped by SAVE</source>
        <translation>Más allá del final del proyecto, se eliminan al GUARDAR</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Kept as %1 (typed %2)</source>
        <translation>Se guarda como %1 (escrito %2)</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Letters are not taken</source>
        <translation>No se admiten letras</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Missing, read as empty</source>
        <translation>Faltan, se leen como vacías</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only a number is taken</source>
        <translation>Solo se admite un número</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only feet and inches are taken here: type it like 12&apos;6&quot;</source>
        <translation>Aquí solo se admiten pies y pulgadas: escriba, por ejemplo, 12&apos;6&quot;</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Only metres and centimetres are taken here: type it like 3.66m</source>
        <translation>Aquí solo se admiten metros y centímetros: escriba, por ejemplo, 3.66m</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Outside rooms 1 to %1, left out and dropped by SAVE: ObjNum %2.</source>
        <translation>Fuera de las estancias 1 a %1, se omiten y se eliminan al GUARDAR: ObjNum %2.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Room %1 has no width or no length: it is stored with 0, and nothing is cut for it.</source>
        <translation>La estancia %1 no tiene ancho o no tiene largo: se guarda con 0 y no se corta nada para ella.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Rooms %1 have no width or no length: they are stored with 0, and nothing is cut for them.</source>
        <translation>Las estancias %1 no tienen ancho o no tienen largo: se guardan con 0 y no se corta nada para ellas.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Stored more than once, the last row is used</source>
        <translation>Guardadas más de una vez, vale la última fila</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Stored under one number with %1, whose rooms they may be</source>
        <translation>Guardadas con el mismo número que %1; pueden ser estancias suyas</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>The length is empty and counts as 0.</source>
        <translation>El largo está vacío y cuenta como 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>The width is empty and counts as 0.</source>
        <translation>El ancho está vacío y cuenta como 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Width and length are empty and count as 0.</source>
        <translation>El ancho y el largo están vacíos y cuentan como 0.</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>With an unknown covering, not estimated until one is chosen</source>
        <translation>Con un material desconocido, sin calcular hasta elegir uno</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>With an unknown wall base, shown as none</source>
        <translation>Con un rodapié desconocido, se muestra como ninguno</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a covering, read as %1</source>
        <translation>Sin material, se lee como %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a room number, read as</source>
        <translation>Sin número de estancia, se lee como</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a wall base, read as none</source>
        <translation>Sin rodapié, se lee como ninguno</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>Without a width or a length, read as 0</source>
        <translation>Sin ancho o sin largo, se lee como 0</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>rooms %1</source>
        <translation>estancias %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>the project %1</source>
        <translation>el proyecto %1</translation>
    </message>
    <message>
        <location filename="../src/store/RoomRows.cpp"/>
        <source>the projects %1</source>
        <translation>los proyectos %1</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The backup %1 cannot be made</source>
        <translation>La copia de seguridad %1 no se puede crear</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The database file %1 cannot be made</source>
        <translation>La base de datos %1 no se puede crear</translation>
    </message>
    <message>
        <location filename="../src/store/Schema.cpp"/>
        <source>The table %1 cannot be made</source>
        <translation>La tabla %1 no se puede crear</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>%1 cannot be deleted from: it is a view and no table.</source>
        <translation>No se puede borrar de %1: es una vista y no una tabla.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>A project&apos;s sheet has no number; its data cannot be deleted.</source>
        <translation>Una hoja del proyecto no tiene número; sus datos no se pueden borrar.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>No sheet number is left: the greatest one, 32767, is in use.</source>
        <translation>No queda ningún número de hoja: el mayor, 32767, está en uso.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>Stored with more than one sheet, the first, number %1, is used; not reached: %2.</source>
        <translation>Guardado con más de una hoja, vale la primera, número %1; no se llega a: %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The project&apos;s sheet has no value in its field %1.</source>
        <translation>La hoja del proyecto no tiene valor en su campo %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The project&apos;s sheet holds a wrong value in its field %1.</source>
        <translation>La hoja del proyecto tiene un valor erróneo en su campo %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>The sheet of the project %1 has the number %2; %3</source>
        <translation>La hoja del proyecto %1 tiene el número %2; %3</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>it must be a whole one.</source>
        <translation>debe ser entero.</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>one without a number</source>
        <translation>una sin número</translation>
    </message>
    <message>
        <location filename="../src/store/Sheets.cpp"/>
        <source>the greatest is %1.</source>
        <translation>el mayor es %1.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 cannot be changed</source>
        <translation>%1 no se puede modificar</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 cannot be given the field %2</source>
        <translation>A %1 no se le puede añadir el campo %2</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1 has no field %2.</source>
        <translation>%1 no tiene el campo %2.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1: the database keeps a row as it was.</source>
        <translation>%1: la base de datos deja una fila como estaba.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>%1: the database leaves it out.</source>
        <translation>%1: la base de datos la omite.</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <source>The field %1 should hold a number and holds &quot;%2&quot;.</source>
        <translation>El campo %1 debería contener un número y contiene «%2».</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.cpp"/>
        <location filename="../src/store/Backups.cpp"/>
        <location filename="../src/store/RawRows.cpp"/>
        <location filename="../src/store/Check.cpp"/>
        <location filename="../src/store/Repair.cpp"/>
        <source>%1 cannot be read</source>
        <translation>%1 no se puede leer</translation>
    </message>
    <message>
        <location filename="../src/store/Tables.h"/>
        <source>%1 cannot be deleted from</source>
        <translation>De %1 no se puede borrar</translation>
    </message>
    <message>
        <location filename="../src/store/UntouchedFile.cpp"/>
        <source>The database file %1 cannot be looked over: a copy of it cannot be made in %2: %3.</source>
        <translation>La base de datos %1 no se puede revisar: no se puede hacer una copia de ella en %2: %3.</translation>
    </message>
    <message>
        <location filename="../src/store/UntouchedFile.cpp"/>
        <source>The database file %1 cannot be looked over: the folder for temporary files takes none.</source>
        <translation>La base de datos %1 no se puede revisar: la carpeta de archivos temporales no admite ninguno.</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 excludes %2</source>
        <translation>%1 excluye %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 is required</source>
        <translation>%1 es obligatorio</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1 requires %2</source>
        <translation>%1 necesita %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: %2 not in %3</source>
        <translation>%1: %2 no es ninguno de %3</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: %2 required %3 missing</source>
        <translation>%1: falta %3 (necesarios: %2)</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: At Most %2 required but received %3</source>
        <translation>%1: se admite %2 como máximo y hay %3</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>%1: Value %2 not in range %3 to %4</source>
        <translation>%1: el valor %2 no está entre %3 y %4</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>A subcommand is required</source>
        <translation>Hace falta una orden</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>Could not convert: %1 = %2</source>
        <translation>No se entiende: %1 = %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>Run with --help for more information.</source>
        <translation>--help da más información.</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>The following argument was not expected: %1</source>
        <translation>Este argumento no se esperaba: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/ArgumentErrors.cpp"/>
        <source>The following arguments were not expected: %1</source>
        <translation>Estos argumentos no se esperaban: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%1, see tarn-data check</source>
        <translation>%1, vea tarn-data check</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%1, sound</source>
        <translation>%1, correcta</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>%n project</source>
        <comment>%n projects</comment>
        <translation>
            <numerusform>%n proyecto</numerusform>
            <numerusform>%n proyectos</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>The database %1 has faults:</source>
        <translation>La base de datos %1 tiene fallos:</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>The database %1 is sound and has every table.</source>
        <translation>La base de datos %1 es correcta y tiene todas las tablas.</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <source>cannot be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <location filename="../src/tools/CareCommands.cpp"/>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Made %1.</source>
        <translation>Se creó %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%1 CM</source>
        <translation>%1 CM</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%1 The database is made all the same. Write %2 yourself: the line %3, and in the next one its folder.</source>
        <translation>%1 La base de datos está creada de todos modos. Escriba %2 usted mismo: la línea %3 y, en la siguiente, su carpeta.</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>%n kilobyte</source>
        <comment>%n kilobytes</comment>
        <translation>
            <numerusform>%n kilobyte</numerusform>
            <numerusform>%n kilobytes</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Backups in %1, the newest first:</source>
        <translation>Copias de seguridad en %1, la más reciente primero:</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>It differs from %1:</source>
        <translation>Se diferencia de %1:</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>It holds all that %1 does.</source>
        <translation>Contiene todo lo que contiene %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Made %1, which names the folder %2.</source>
        <translation>Se creó %1, que indica la carpeta %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Name the folder to be made.</source>
        <translation>Indique la carpeta que se debe crear.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Put %1 in the place of %2.</source>
        <translation>Se puso %1 en lugar de %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The configuration file %1 is in force; it names no folder.</source>
        <translation>El archivo de configuración %1 está en vigor; no indica ninguna carpeta.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The configuration file %1 is in force; it names the folder %2.</source>
        <translation>El archivo de configuración %1 está en vigor; indica la carpeta %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The journal beside it is kept as %1.</source>
        <translation>El diario que había junto a ella se conserva como %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>The project %1 cannot be exported: no import would take these rooms. Correct them in the program first; nothing was written.</source>
        <translation>El proyecto %1 no se puede exportar: ninguna importación admitiría estas estancias. Corríjalas antes en el programa; no se escribió nada.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no backup %1. &quot;tarn-data backups&quot; tells the backups that there are.</source>
        <translation>No hay ninguna copia de seguridad %1. «tarn-data backups» dice cuáles hay.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no backup in %1</source>
        <translation>No hay copias de seguridad en %1</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>There is no home directory for the configuration file; name a directory with --config-dir.</source>
        <translation>No hay carpeta personal para el archivo de configuración; indique un directorio con --config-dir.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Warning: the project %1 was entered in metric; its sizes are listed in feet and inches. Use --metric for centimetres.</source>
        <translation>Aviso: el proyecto %1 se introdujo en métrico; sus medidas se enumeran en pies y pulgadas. Use --metric para centímetros.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>Warning: the project %1 was entered in metric; its sizes are written in centimetres. Use --metric to read them.</source>
        <translation>Aviso: el proyecto %1 se introdujo en métrico; sus medidas se escriben en centímetros. Use --metric para leerlas.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>What was there is kept as %1.</source>
        <translation>Lo que había se conserva como %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>cannot be loaded: %1</source>
        <translation>no se puede cargar: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/DataCommands.cpp"/>
        <source>room %1: %2</source>
        <translation>estancia %1: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Database file</source>
        <translation>Archivo de la base de datos</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Make and look after the data of the estimating program.</source>
        <translation>Crea y cuida los datos del programa de cálculo.</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>Subcommands</source>
        <translation>Órdenes</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <source>tarn-data COMMAND --help tells the options of a command.

A name has at most %1 characters, a project&apos;s none of %2

Exit status: 0 done, 1 refused or faults found (the reason is on standard error), 2 wrong usage.

Example:
  tarn-data create ~/estimates
  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project &quot;SMITH&quot; house.csv</source>
        <translation>tarn-data ORDEN --help dice las opciones de una orden.

Un nombre tiene como máximo %1 caracteres; el de un proyecto, ninguno de %2

Estado de salida: 0 hecho, 1 rechazado o fallos encontrados (la causa está en la salida de errores), 2 uso incorrecto.

Ejemplo:
  tarn-data create ~/estimates
  tarn-data import --database ~/estimates/DATA/Tarn.mdb --project &quot;SMITH&quot; house.csv</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Name of the project</source>
        <translation>Nombre del proyecto</translation>
    </message>
    <message>
        <location filename="../src/tools/DataOptions.cpp"/>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Print this help message and exit</source>
        <translation>Mostrar esta ayuda y terminar</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>%1 inches or more (%2 with --metric)</source>
        <translation>%1 pulgadas o más (%2 con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
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
        <translation>Un archivo CSV tiene una línea de cabecera y las columnas width,length,covering,base,room,remark en
cualquier orden; las tres primeras son obligatorias. Las medidas son pulgadas enteras o texto como
12&apos;6&quot; (centímetros enteros con --metric), o números en la unidad que dice un encabezado como
«Width (ft)»; los materiales CARPET-1 o C1, TILE-4 o T4. La columna base dice cuántos anchos y
largos de la estancia llevan rodapié: W2L1 son dos anchos y un largo. Una medida de 0 se lee y no se
corta. Un número de estancia tiene como máximo %1 caracteres y una nota %2, cada uno en una línea;
si empieza por &apos; se quita ese &apos;. Separan comas, puntos y comas o tabuladores. Un archivo, que no sea
tubería ni dispositivo, tiene como máximo %3 estancias y %4 MB.

Un archivo de salida sustituye al que hay cuando está entero y guardado. Las bases de datos y los
enlaces simbólicos se quedan como están sin --force.

Estado de salida: 0 hecho, 1 rechazado (la causa está en la salida de errores), 2 uso incorrecto.

Ejemplo:
  tarn-estimate --rooms house.csv --carpet 1 --roll-width 12ft --max-pieces 2 --svg house.svg</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Estimate one carpet of a project: how its rooms are cut from a roll.
The rooms come from a database (--database and --project) or from a CSV file (--rooms).</source>
        <translation>Calcula una moqueta de un proyecto: cómo se cortan sus estancias de un rollo.
Las estancias vienen de una base de datos (--database y --project) o de un archivo CSV (--rooms).</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>How many threads look for it (all cores, at most 8; with --improve-steps one)</source>
        <translation>Cuántos hilos las buscan (todos los núcleos, 8 como máximo; con --improve-steps uno)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Maximum number of parts into which a fill is divided, 1 to %1</source>
        <translation>Número máximo de tramos en que se divide un relleno, de 1 a %1</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Minimum cut: %1. Despite their names these keep the parts of a divided fill at %2 or more (%3 with --metric); --improve keeps them at %4</source>
        <translation>Corte mínimo: %1. Pese a sus nombres, mantienen los tramos de un relleno dividido en %2 o más (%3 con --metric); --improve los mantiene en %4</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Number of the carpet, 1 to 8</source>
        <translation>Número de la moqueta, de 1 a 8</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Pattern repeat across x along, in inches (centimetres with --metric)</source>
        <translation>Rapport a lo ancho x a lo largo, en pulgadas (centímetros con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The match pattern &quot;%1&quot; is not readable: write it as 18x24, the repeat across and along.</source>
        <translation>El rapport «%1» no se entiende: escríbalo como 18x24, a lo ancho y a lo largo.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The same for so many steps at most, so that the result can be repeated</source>
        <translation>Lo mismo con tantos pasos como máximo, para que el resultado se pueda repetir</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>The sizes are centimetres; lists and totals are metric</source>
        <translation>Las medidas son centímetros; listas y totales son métricos</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Then look for a better layout, for so many seconds at most or until it is the least possible, with the parts of a divided fill at %1 by --min-cut; Ctrl+C ends that earlier and keeps the best</source>
        <translation>Buscar después una disposición mejor, durante tantos segundos como máximo o hasta el mínimo posible, con los tramos de un relleno dividido en %1 según --min-cut; Ctrl+C lo termina antes y conserva la mejor</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Width of the roll: 12ft, 13.5ft, 12ft6in, 150in or 366cm</source>
        <translation>Ancho del rollo: 12ft, 13.5ft, 12ft6in, 150in o 366cm</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write cuts, pieces and totals as JSON</source>
        <translation>Escribir cortes, piezas y totales como JSON</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the cut list to FILE, or to standard output for - (done when no other output is asked for)</source>
        <translation>Escribir la lista de corte en FILE, o en la salida estándar con - (así se hace si no se pide otra salida)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the drawing of the layout with the cut list</source>
        <translation>Escribir el dibujo de la disposición con la lista de corte</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the page that the program prints, for the paper of the default printer (A4 without one)</source>
        <translation>Escribir la página que imprime el programa, para el papel de la impresora predeterminada (A4 si no hay)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>Write the whole roll, cuts and fills, true to size for a plotter or cutting table, along X, in inches (centimetres with --metric)</source>
        <translation>Escribir todo el rollo, cortes y rellenos, a tamaño real para un plóter o una mesa de corte, a lo largo de X, en pulgadas (centímetros con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateOptions.cpp"/>
        <source>down: room widths across the roll; cross: room lengths</source>
        <translation>down: el ancho de las estancias a lo ancho del rollo; cross: el largo</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>No room has %1.</source>
        <translation>Ninguna estancia tiene %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>Warning: the project %1 was entered in metric; it is estimated in feet and inches. Use --metric for centimetres.</source>
        <translation>Aviso: el proyecto %1 se introdujo en métrico; se calcula en pies y pulgadas. Use --metric para centímetros.</translation>
    </message>
    <message>
        <location filename="../src/tools/EstimateTool.cpp"/>
        <source>Warning: the rooms of %1 have no area; there is nothing to cut.</source>
        <translation>Aviso: las estancias de %1 no tienen superficie; no hay nada que cortar.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>The file %1 cannot be read: %2.</source>
        <translation>El archivo %1 no se puede leer: %2.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>The file %1 cannot be written: the rooms are read from it. Name another file.</source>
        <translation>El archivo %1 no se puede escribir: de él se leen las estancias. Indique otro archivo.</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it has more than %1 MB</source>
        <translation>tiene más de %1 MB</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a device. Save what comes from it in a file and name that</source>
        <translation>es un dispositivo. Guarde en un archivo lo que sale de él e indique ese archivo</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <location filename="../src/tools/Files.cpp"/>
        <source>it is a pipe. Save what comes from it in a file and name that</source>
        <translation>es una tubería. Guarde en un archivo lo que sale de ella e indique ese archivo</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/Import.cpp"/>
        <source>%1: %n room.</source>
        <comment>%1: %n rooms.</comment>
        <translation>
            <numerusform>%1: %n estancia.</numerusform>
            <numerusform>%1: %n estancias.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/Import.cpp"/>
        <source>The file %1 has no rooms; the project %2 keeps those that it has.</source>
        <translation>El archivo %1 no tiene estancias; el proyecto %2 conserva las suyas.</translation>
    </message>
    <message>
        <location filename="../src/tools/Import.cpp"/>
        <source>The project %1 has rooms already; --replace puts those of the file in their place.</source>
        <translation>El proyecto %1 ya tiene estancias; --replace pone en su lugar las del archivo.</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Fills: %1, %2</source>
        <translation>Rellenos: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Note: beside it there is one of %1.</source>
        <translation>Nota: además hay otra disposición de %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/ImproveTool.cpp"/>
        <source>Note: no better layout was found; %1.</source>
        <translation>Nota: no se encontró una disposición mejor; %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>%1 Use --roll.</source>
        <translation>%1 Use --roll.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>A roll to compare, with a name and a price per square yard (square metre with --metric) if wanted; may be given several times</source>
        <translation>Un rollo que comparar, con nombre y precio por yarda cuadrada (metro cuadrado con --metric) si se desea; se puede dar varias veces</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>A room no wider than the roll may be divided, too</source>
        <translation>También se puede partir una estancia que no sea más ancha que el rollo</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Cut off along each edge of the roll (default 0, at most 6in or 15cm)</source>
        <translation>Se corta en cada borde del rollo (por omisión 0, como máximo 6in o 15cm)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Folder to be made; it will hold %1</source>
        <translation>Carpeta que se crea; contendrá %1</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>How long to look for shorter layouts, all rows together (default 2); Ctrl+C ends that earlier and keeps the best</source>
        <translation>Cuánto tiempo se buscan disposiciones más cortas, para todas las filas juntas (por omisión 2); Ctrl+C lo termina antes y conserva la mejor</translation>
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
        <translation>Las medidas se escriben 12ft6in, 18in, 366cm o 3.66m; un número sin unidad está en las unidades del
proyecto. Todas las medidas de un pedido son pulgadas enteras, con --metric centímetros enteros: los
anchos de rollo se redondean hacia abajo; demasía, orillo, tramo mínimo y paso, hacia arriba. Un
rapport debe ser entero.

El rapport a lo ancho es la distancia a la siguiente columna del dibujo, que con --half-drop está
medio rapport más adelante: la mitad del rapport de los fabricantes que dan el dibujo completo.

Las opciones que se dan prevalecen sobre la petición guardada con el proyecto.

Estado de salida: 0 hecho, 1 rechazado o ninguna moqueta tiene pedido (la causa está en la salida
de errores), 2 uso incorrecto.

Ejemplo:
  tarn-order --rooms house.csv --roll 12ft=18.50 --roll 15ft=19 --lay both --trim 3in</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Make a data folder with an empty database</source>
        <translation>Crear una carpeta de datos con una base de datos vacía</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>More than a room&apos;s width, the same bounds</source>
        <translation>Lo que se añade al ancho de una estancia, con los mismos límites</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>More than a strip&apos;s length, at its far end (default 0, at most 24in or 60cm)</source>
        <translation>Lo que se añade al largo de una tira, en su extremo final (por omisión 0, como máximo 24in o 60cm)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Most parts of a strip, 1 to %1 (default 1)</source>
        <translation>Número máximo de tramos de una tira, de 1 a %1 (por omisión 1)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Number of the carpet, 1 to 8 (default: all of the project)</source>
        <translation>Número de la moqueta, de 1 a 8 (por omisión: todas las del proyecto)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Pattern repeat across x along, 0 for none in that direction</source>
        <translation>Rapport a lo ancho x a lo largo, 0 si no hay en ese sentido</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Percent by which repeats may come out longer (default 1 with a repeat along, else 0; at most 10)</source>
        <translation>Porcentaje en que los rapports pueden salir más largos (por omisión 1 con un rapport a lo largo; si no, 0; 10 como máximo)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Shortest part of a divided strip (default 3ft, 91cm with --metric)</source>
        <translation>Tramo mínimo de una tira dividida (por omisión 3ft, 91cm con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>So many layouts for each row instead, so that the result can be repeated</source>
        <translation>En su lugar, tantas disposiciones por fila, para que el resultado se pueda repetir</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The next column of the pattern stands half a repeat further along</source>
        <translation>La siguiente columna del dibujo está medio rapport más adelante</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The roll is ordered in whole steps (default 3in, 5cm with --metric)</source>
        <translation>El rollo se pide en pasos enteros (por omisión 3in, 5cm con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The sizes are inches, also of a project that was entered in metric</source>
        <translation>Las medidas son pulgadas, también en un proyecto introducido en métrico</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>What to buy and how to cut it: compares rolls and lays, and lists the cuts of the best.
The rooms come from a database (--database and --project) or from a CSV file (--rooms).</source>
        <translation>Qué comprar y cómo cortarlo: compara rollos y colocaciones y enumera los cortes de la mejor.
Las estancias vienen de una base de datos (--database y --project) o de un archivo CSV (--rooms).</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and list as text (on standard output when no other output is asked for)</source>
        <translation>Escribir la comparación y la lista como texto (en la salida estándar si no se pide otra salida)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and pieces as CSV</source>
        <translation>Escribir la comparación y las piezas como CSV</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write comparison and pieces as a spreadsheet</source>
        <translation>Escribir la comparación y las piezas como hoja de cálculo</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write requests, comparison and pieces as JSON</source>
        <translation>Escribir peticiones, comparación y piezas como JSON</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the pages of one carpet&apos;s sheet below each other as a drawing (with --carpet when there are several)</source>
        <translation>Escribir las páginas de la hoja de una moqueta una bajo otra como dibujo (con --carpet si hay varias)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the roll of one carpet&apos;s best row true to size for a plotter or cutting table, along X, in inches (centimetres with --metric)</source>
        <translation>Escribir el rollo de la mejor fila de una moqueta a tamaño real para un plóter o una mesa de corte, a lo largo de X, en pulgadas (centímetros con --metric)</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>Write the sheet to buy and cut by, of all carpets, as it is printed; A4 unless the printer has another paper</source>
        <translation>Escribir la hoja de pedido y corte de todas las moquetas, tal como se imprime; A4 si la impresora no tiene otro papel</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>down: room widths across the roll (default); cross: room lengths</source>
        <translation>down: el ancho de las estancias a lo ancho del rollo (por omisión); cross: el largo</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>write the repeat across and along, as 18x24.</source>
        <translation>escriba el rapport a lo ancho y a lo largo, como 18x24.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Directory of the configuration file %1</source>
        <translation>Directorio del archivo de configuración %1</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>%1 is refused: %2</source>
        <translation>%1 se rechaza: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>No carpet has an order: every roll and lay is refused.</source>
        <translation>Ninguna moqueta tiene pedido: todos los rollos y colocaciones se rechazan.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>No room with an area has %1.</source>
        <translation>Ninguna estancia con superficie tiene %1.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>Note: %1, %2</source>
        <translation>Nota: %1, %2</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>Note: %1: the saved request is in other units and is not used.</source>
        <translation>Nota: %1: la petición guardada está en otras unidades y no se usa.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>The drawing of %1 shows one carpet, and there are several: choose one with --carpet.</source>
        <translation>El dibujo de %1 muestra una moqueta, y hay varias: elija una con --carpet.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>The project %1 was entered in metric. Use --metric, or --feet to take its sizes as inches.</source>
        <translation>El proyecto %1 se introdujo en métrico. Use --metric, o --feet para tomar sus medidas como pulgadas.</translation>
    </message>
    <message>
        <location filename="../src/tools/OrderTool.cpp"/>
        <source>comparing</source>
        <translation>comparando</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>A file, or a name as &quot;backups&quot; lists it</source>
        <translation>Un archivo, o un nombre tal como lo enumera «backups»</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Check that a database is sound, and all that stands in it</source>
        <translation>Comprobar que una base de datos, y todo lo que contiene, es correcta</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Copy a database, also while the program uses it</source>
        <translation>Copiar una base de datos, también mientras el programa la usa</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Directory of a new project (default: the current month)</source>
        <translation>Directorio de un proyecto nuevo (por omisión: el mes actual)</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Estimate how carpets are cut from the roll.</source>
        <translation>Calcula cómo se cortan las moquetas del rollo.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>File to be made; must not exist</source>
        <translation>Archivo que se crea; no debe existir</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>File to write (default: standard output)</source>
        <translation>Archivo que se escribe (por omisión: la salida estándar)</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>List directories, projects and rooms</source>
        <translation>Enumerar directorios, proyectos y estancias</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>List the backups that the program made</source>
        <translation>Enumerar las copias de seguridad que hizo el programa</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Make the rooms of a CSV file those of a project</source>
        <translation>Hacer de las estancias de un archivo CSV las de un proyecto</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Print the entered-data report of a project</source>
        <translation>Escribir el informe de datos de un proyecto</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Put a backup in the place of a database; what was there is kept</source>
        <translation>Poner una copia de seguridad en lugar de una base de datos; lo que había se conserva</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Replace the rooms that the project has</source>
        <translation>Sustituir las estancias que tiene el proyecto</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Rooms that are to become a project, whose name is asked for</source>
        <translation>Estancias que deben pasar a ser un proyecto, cuyo nombre se pregunta</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>The columns of a CSV file are those that tarn-estimate --help tells.

Exit status: 0 done, 1 the program could not start (the reason is in a box or on standard
error), 2 wrong usage.

Example:
  tarn house.csv</source>
        <translation>Las columnas de un archivo CSV son las que dice tarn-estimate --help.

Estado de salida: 0 hecho, 1 el programa no pudo iniciarse (la causa está en un cuadro o en la salida
de errores), 2 uso incorrecto.

Ejemplo:
  tarn house.csv</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>The rooms; see tarn-estimate --help</source>
        <translation>Las estancias; vea tarn-estimate --help</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write a clean copy of all that can be read</source>
        <translation>Escribir una copia limpia de todo lo que se puede leer</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write a project&apos;s rooms as CSV</source>
        <translation>Escribir las estancias de un proyecto como CSV</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write it as CSV instead</source>
        <translation>Escribirlo como CSV en su lugar</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write it as a spreadsheet instead</source>
        <translation>Escribirlo como hoja de cálculo en su lugar</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>Write them as a spreadsheet, with the totals by covering</source>
        <translation>Escribirlas como hoja de cálculo, con los totales por material</translation>
    </message>
    <message>
        <location filename="../src/tools/ProgramOptions.cpp"/>
        <source>the CSV</source>
        <translation>el CSV</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Note: %1</source>
        <translation>Nota: %1</translation>
    </message>
    <message numerus="yes">
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Note: %1, and %n more size that is rounded</source>
        <comment>Note: %1, and %n more sizes that are rounded</comment>
        <translation>
            <numerusform>Nota: %1, y %n medida redondeada más</numerusform>
            <numerusform>Nota: %1, y %n medidas redondeadas más</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Or name the encoding of the file with --encoding, such as windows-1252.</source>
        <translation>O indique la codificación del archivo con --encoding, por ejemplo windows-1252.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The file %1 cannot be used; nothing was taken from it:</source>
        <translation>El archivo %1 no se puede usar; no se tomó nada de él:</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The name of the directory &quot;%1&quot; %2</source>
        <translation>El nombre del directorio «%1» %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The name of the project &quot;%1&quot; %2</source>
        <translation>El nombre del proyecto «%1» %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The project %1 cannot be loaded: %2</source>
        <translation>El proyecto %1 no se puede cargar: %2</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>The project %1 has no saved rooms.</source>
        <translation>El proyecto %1 no tiene estancias guardadas.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>There is no project %1. &quot;tarn-data list&quot; tells the projects that there are.</source>
        <translation>No hay ningún proyecto %1. «tarn-data list» dice cuáles hay.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>Warning: %1</source>
        <translation>Aviso: %1</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>holds U+FFFE or U+FFFF, which are no characters.</source>
        <translation>contiene U+FFFE o U+FFFF, que no son caracteres.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>holds a line break or another control character.</source>
        <translation>contiene un salto de línea u otro carácter de control.</translation>
    </message>
    <message>
        <location filename="../src/tools/ProjectFile.cpp"/>
        <source>is not UTF-8: the terminal that it was typed in writes another code.</source>
        <translation>no es UTF-8: el terminal en que se escribió usa otra codificación.</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 and %2 cannot both go to %3</source>
        <translation>%1 y %2 no pueden ir los dos a %3</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 and %2 cannot both go to standard output</source>
        <translation>%1 y %2 no pueden ir los dos a la salida estándar</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>%1 is not a number above 0</source>
        <translation>%1 no es un número mayor que 0</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Another seed makes the search take another way</source>
        <translation>Otra semilla hace que la búsqueda tome otro camino</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>CSV file with the rooms</source>
        <translation>Archivo CSV con las estancias</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Database file of the project</source>
        <translation>Archivo de la base de datos del proyecto</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Display program version information and exit</source>
        <translation>Mostrar la versión del programa y terminar</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Encoding of the CSV file, such as windows-1252; &quot;iconv -l&quot; lists them (default: what its byte-order mark says, else UTF-8)</source>
        <translation>Codificación del archivo CSV, por ejemplo windows-1252; «iconv -l» las enumera (por omisión: la que dice su marca de orden de bytes; si no, UTF-8)</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Excludes</source>
        <translation>Excluye</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Language of what is said to people; what programs read stays as it is</source>
        <translation>Idioma de lo que se dice a las personas; lo que leen los programas no cambia</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Needs</source>
        <translation>Necesita</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>POSITIVE</source>
        <translation>POSITIVO</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Positionals</source>
        <translation>Argumentos</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>REQUIRED</source>
        <translation>OBLIGATORIO</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>SUBCOMMAND</source>
        <translation>ORDEN</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>TEXT</source>
        <translation>TEXTO</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>Write over a database too, and where a symbolic link leads</source>
        <translation>Escribir también sobre una base de datos, y adonde lleve un enlace simbólico</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>either --database and --project, or --rooms is required</source>
        <translation>se necesitan --database y --project, o bien --rooms</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <source>the value is empty</source>
        <translation>el valor está vacío</translation>
    </message>
    <message>
        <location filename="../src/tools/SharedOptions.cpp"/>
        <location filename="../src/tools/OrderOptions.cpp"/>
        <source>The sizes are centimetres</source>
        <translation>Las medidas son centímetros</translation>
    </message>
    <message>
        <location filename="../src/tools/StandardStreams.h"/>
        <source>Standard output cannot be written.</source>
        <translation>La salida estándar no se puede escribir.</translation>
    </message>
    <message>
        <location filename="../src/tools/ToolMain.cpp"/>
        <source>What was asked for is done, but standard output cannot be written.</source>
        <translation>Lo pedido está hecho, pero la salida estándar no se puede escribir.</translation>
    </message>
    <message>
        <location filename="../src/tools/tarn.cpp"/>
        <source>There is no display to show the program on.</source>
        <translation>No hay pantalla en la que mostrar el programa.</translation>
    </message>
</context>
</TS>
