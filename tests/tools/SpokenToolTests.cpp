// What the tools say in another language, and what they write for programs all the same.

#include "QtString.h"
#include "tools/ToolTesting.h"

#include <array>
#include <string>

namespace tarn {
namespace {

using testing::S;
using testing::ToolRun;
using testing::ToolTest;

// --- arguments that cannot be understood ---

/// A command line and why it is refused.
struct WrongLine {
    const char* Line;
    const char* English;
    const char* German;
    const char* Spanish;
};

const std::array WrongLines{
    WrongLine{"tarn-data", "A subcommand is required", "Ein Befehl ist erforderlich",
              "Hace falta una orden"},
    WrongLine{"tarn-data list", "--database is required", "--database ist erforderlich",
              "--database es obligatorio"},
    WrongLine{"tarn-data import --database d --project p", "FILE.csv is required",
              "FILE.csv ist erforderlich", "FILE.csv es obligatorio"},
    WrongLine{"tarn-order --project p", "--project requires --database",
              "--project braucht --database", "--project necesita --database"},
    WrongLine{"tarn-order --feet --metric --rooms r", "--metric excludes --feet",
              "--metric geht nicht mit --feet", "--metric excluye --feet"},
    WrongLine{"tarn-order --rooms r 'a b'", "The following argument was not expected: a b",
              "Dieses Argument ist hier nicht möglich: a b", "Este argumento no se esperaba: a b"},
    WrongLine{"tarn-data list --database d a b", "The following arguments were not expected: b a",
              "Diese Argumente sind hier nicht möglich: b a",
              "Estos argumentos no se esperaban: b a"},
    WrongLine{"tarn-order --rooms r --seed x", "Could not convert: --seed = x",
              "Nicht lesbar: --seed = x", "No se entiende: --seed = x"},
    WrongLine{"tarn-order --rooms=", "--rooms: 1 required FILE.csv missing",
              "--rooms: FILE.csv fehlt (erforderlich: 1)",
              "--rooms: falta FILE.csv (necesarios: 1)"},
    WrongLine{"tarn-data list --database d --database e",
              "--database: At Most 1 required but received 2",
              "--database: höchstens 1 möglich, 2 angegeben",
              "--database: se admite 1 como máximo y hay 2"},
    WrongLine{"tarn-estimate --carpet 9 --roll-width 12ft", "--carpet: Value 9 not in range 1 to 8",
              "--carpet: Der Wert 9 liegt nicht zwischen 1 und 8",
              "--carpet: el valor 9 no está entre 1 y 8"},
    WrongLine{"tarn-order --rooms r --lay up", "--lay: up not in {down,cross,both}",
              "--lay: up ist keines von {down,cross,both}",
              "--lay: up no es ninguno de {down,cross,both}"},
    WrongLine{"tarn-order --rooms r --steps 0", "--steps: 0 is not a number above 0",
              "--steps: 0 ist keine Zahl über 0", "--steps: 0 no es un número mayor que 0"},
    WrongLine{"tarn-estimate --rooms r --carpet 1 --roll-width 12ft --improve x",
              "--improve: x is not a number above 0", "--improve: x ist keine Zahl über 0",
              "--improve: x no es un número mayor que 0"},
    WrongLine{"tarn-order --rooms r --step ''", "--step: the value is empty",
              "--step: Der Wert ist leer", "--step: el valor está vacío"},
    WrongLine{"tarn-order", "either --database and --project, or --rooms is required",
              "entweder --database und --project oder --rooms ist erforderlich",
              "se necesitan --database y --project, o bien --rooms"},
};

class SpokenArguments : public ToolTest {
  protected:
    void ExpectRefused(const WrongLine& wrong, const char* language, const char* text,
                       const char* more) const {
        QByteArray line(wrong.Line);
        const qsizetype program = line.indexOf(' ');
        line.insert(program < 0 ? line.size() : program, QByteArray(" --language ") + language);
        const ToolRun run = Shell(line);
        EXPECT_EQ(run.Status, 2) << wrong.Line;
        EXPECT_EQ(run.Out, "") << wrong.Line;
        EXPECT_EQ(run.Error.toStdString(), std::string(text) + "\n" + more + "\n") << wrong.Line;
    }
};

TEST_F(SpokenArguments, AreRefusedInEnglish) {
    for (const WrongLine& each : WrongLines) {
        ExpectRefused(each, "en", each.English, "Run with --help for more information.");
    }
}

TEST_F(SpokenArguments, AreRefusedInGerman) {
    for (const WrongLine& each : WrongLines) {
        ExpectRefused(each, "de", each.German, "Mehr dazu sagt --help.");
    }
}

TEST_F(SpokenArguments, AreRefusedInSpanish) {
    for (const WrongLine& each : WrongLines) {
        ExpectRefused(each, "es", each.Spanish, "--help da más información.");
    }
}

TEST_F(SpokenArguments, AreExplainedBelowHeadingsOfTheirLanguage) {
    const auto help = [this](const char* line) { return Shell(line).Out; };
    const QByteArray german = help("tarn-data --help --language de");
    EXPECT_TRUE(german.contains("\nBefehle:\n  create ")) << german.toStdString();
    EXPECT_TRUE(german.contains("\nOptionen:\n")) << german.toStdString();
    EXPECT_FALSE(german.contains("Subcommands")) << german.toStdString();
    const QByteArray spanish = help("tarn-data import --help --language es");
    EXPECT_TRUE(spanish.contains("\nArgumentos:\n  FILE.csv TEXTO OBLIGATORIO"))
        << spanish.toStdString();
    EXPECT_TRUE(help("tarn-order --help --language es").contains("--steps N:POSITIVO"));
    const QByteArray english = help("tarn-data --help");
    EXPECT_TRUE(english.contains("\nSubcommands:\n  create ")) << english.toStdString();
    EXPECT_TRUE(help("tarn-data import --help").contains("  FILE.csv TEXT REQUIRED "));
    EXPECT_TRUE(help("tarn-order --help").contains("--steps N:POSITIVE "));
}

// --- files of rooms ---

class SpokenImport : public ToolTest {
  protected:
    ToolRun Import(const char* language, const QByteArray& file,
                   const QStringList& more = {}) const {
        Write(S("a.csv"), file);
        return Data(QStringList{S("import"), S("--database"), database_, S("--project"), S("SMITH"),
                                S("--replace"), S("a.csv"), S("--language"), S(language)} +
                    more);
    }
    void ExpectRefused(const char* language, const QByteArray& file, const char* text,
                       const QStringList& more = {}) const {
        const ToolRun run = Import(language, file, more);
        EXPECT_EQ(run.Status, 1);
        EXPECT_EQ(run.Out, "");
        EXPECT_EQ(run.Error.toStdString(), text);
    }

    QString database_ = MakeDatabase();
};

constexpr const char* WrongRooms = "width,length,covering,base,room,remark\n"
                                   "-5,,VINYL,X9,,\n"
                                   "40000,x,,W2L1W2L1W,123456789,\n"
                                   "\"12,5\",\"1,200\",C1,,,\"a\nb\"\n"
                                   "60,96,C1,,,\xEF\xBF\xBE\n"
                                   "60,96,C1,,,K\xFC"
                                   "che\n"
                                   "60,96\n"
                                   "60,96,C1,,,\"a\"b\n"
                                   "60,96,C1,,,\"a\n";
constexpr const char* WrongHeadings = "width (m),colour,,Width,length (mm)\n1,2,3,4,5\n";

TEST_F(SpokenImport, TellsEachMistakeOfAFileInGerman) {
    ExpectRefused(
        "de", WrongRooms,
        R"(tarn-data: Die Datei a.csv ist nicht verwendbar; nichts wurde aus ihr übernommen:
  Zeile 2: width „-5“ ist negativ
  Zeile 2: length fehlt
  Zeile 2: covering „VINYL“ ist kein Belag: CARPET-1 bis CARPET-8, TILE-1 bis TILE-4, oder kurz wie C1 oder T1
  Zeile 2: base „X9“ ist kein Sockel: L oder W mit 1 oder 2, wie W2L1
  Zeile 3: width „40000“ ist zu groß: Ein Maß ist höchstens 32767
  Zeile 3: length „x“ ist kein Maß in ganzen Zoll oder in Fuß und Zoll wie 12'6"
  Zeile 3: covering fehlt
  Zeile 3: base „W2L1W2L1W“ hat mehr als 8 Zeichen
  Zeile 3: room „123456789“ hat mehr als 8 Zeichen
  Zeile 4: width „12,5“ hat ein Dezimalkomma: Schreiben Sie 12.5 unter einer Überschrift mit der Einheit, wie width (ft)
  Zeile 4: length „1,200“ hat ein Komma: Schreiben Sie 1.200 oder 1200
  Zeile 4: remark „a b“ enthält einen Zeilenumbruch oder ein anderes Steuerzeichen; schreiben Sie es in eine Zeile
  Zeile 6: remark „�“ enthält U+FFFE oder U+FFFF, die keine Zeichen sind; lassen Sie sie weg
  Zeile 7: remark „K�che“ ist kein gültiges UTF-8; speichern Sie die Datei als UTF-8 („CSV UTF-8“ in einer Tabellenkalkulation)
  Zeile 8: Felder in der Zeile: 2, in der Kopfzeile: 6
  Zeile 9: remark „ab“ hat Text hinter dem schließenden Anführungszeichen
  Zeile 10: remark „a “ hat ein Anführungszeichen, das nie geschlossen wird
Oder nennen Sie mit --encoding die Zeichenkodierung der Datei, etwa windows-1252.
)");
    ExpectRefused(
        "de", WrongHeadings,
        R"(tarn-data: Die Datei a.csv ist nicht verwendbar; nichts wurde aus ihr übernommen:
  Zeile 1: Spalte „width (m)“ ist metrisch, und die Räume werden in Fuß und Zoll gelesen; lesen Sie sie metrisch
  Zeile 1: Spalte „colour“ ist unbekannt
  Zeile 1: Eine Spalte hat keinen Namen
  Zeile 1: Spalte „Width“ kommt zweimal vor
  Zeile 1: Spalte „length (mm)“ hat eine Einheit, in der kein Maß gelesen wird; geben Sie die Maße in ft, in, m oder cm an
  Zeile 1: Spalte „covering“ fehlt
)");
}

TEST_F(SpokenImport, TellsEachMistakeOfAFileInSpanish) {
    ExpectRefused("es", WrongRooms,
                  R"(tarn-data: El archivo a.csv no se puede usar; no se tomó nada de él:
  línea 2: width «-5» es una medida negativa
  línea 2: falta length
  línea 2: covering «VINYL» no es un material: de CARPET-1 a CARPET-8, de TILE-1 a TILE-4, o abreviado como C1 o T1
  línea 2: base «X9» no es un rodapié: L o W con 1 o 2, como W2L1
  línea 3: width «40000» es demasiado grande: una medida es 32767 como máximo
  línea 3: length «x» no es una medida en pulgadas enteras, ni en pies y pulgadas como 12'6"
  línea 3: falta covering
  línea 3: base «W2L1W2L1W» tiene más de 8 caracteres
  línea 3: room «123456789» tiene más de 8 caracteres
  línea 4: width «12,5» tiene una coma decimal: escriba 12.5 bajo un encabezado con su unidad, como width (ft)
  línea 4: length «1,200» tiene una coma: escriba 1.200 o 1200
  línea 4: remark «a b» contiene un salto de línea u otro carácter de control; escríbalo en una sola línea
  línea 6: remark «�» contiene U+FFFE o U+FFFF, que no son caracteres; quítelos
  línea 7: remark «K�che» no es UTF-8 válido; guarde el archivo como UTF-8 («CSV UTF-8» en una hoja de cálculo)
  línea 8: campos en la línea: 2; en la cabecera: 6
  línea 9: remark «ab» tiene texto tras las comillas de cierre
  línea 10: remark «a » tiene unas comillas que nunca se cierran
O indique la codificación del archivo con --encoding, por ejemplo windows-1252.
)");
    ExpectRefused("es", WrongHeadings,
                  R"(tarn-data: El archivo a.csv no se puede usar; no se tomó nada de él:
  línea 1: la columna «width (m)» está en métrico y las estancias se leen en pies y pulgadas; léalas en métrico
  línea 1: no se conoce la columna «colour»
  línea 1: una columna no tiene nombre
  línea 1: la columna «Width» aparece dos veces
  línea 1: la columna «length (mm)» tiene una unidad en la que no se leen medidas; dé las medidas en ft, in, m o cm
  línea 1: falta la columna «covering»
)");
}

TEST_F(SpokenImport, TellsWhatIsWrongWithAFileAsAWhole) {
    const auto expect = [this](const QByteArray& file, const char* german, const char* spanish,
                               const QStringList& more = {}) {
        const ToolRun inGerman = Import("de", file, more);
        EXPECT_TRUE(inGerman.Error.contains(german)) << inGerman.Error.toStdString();
        const ToolRun inSpanish = Import("es", file, more);
        EXPECT_TRUE(inSpanish.Error.contains(spanish)) << inSpanish.Error.toStdString();
    };
    expect("", "Zeile 1: Die Datei ist leer\n", "línea 1: el archivo está vacío\n");
    expect("PK\x03\x04 xl/",
           "Zeile 1: Die Datei ist eine Excel-Arbeitsmappe (XLSX); öffnen Sie sie in einer "
           "Tabellenkalkulation und speichern Sie sie als CSV\n",
           "línea 1: el archivo es un libro de Excel (XLSX); ábralo en una hoja de cálculo y "
           "guárdelo como CSV\n");
    expect("width\n\xFF\n", "Zeile 2: Zeichen 1: Das Byte 0xFF gibt es in utf-8 nicht\n",
           "línea 2: carácter 1: el byte 0xFF no existe en utf-8\n", {S("--encoding"), S("utf-8")});
    expect("width (ft),length,covering\n1,x,C1\n",
           "Spalte „width (ft)“ ist in Fuß oder Zoll, und die Räume werden metrisch gelesen; lesen "
           "Sie sie nicht metrisch\n  Zeile 2: length „x“ ist kein Maß in ganzen Zentimetern\n",
           "la columna «width (ft)» está en pies o pulgadas y las estancias se leen en métrico; "
           "léalas sin métrico\n  línea 2: length «x» no es una medida en centímetros enteros\n",
           {S("--metric")});
    expect("\"width", "Zeile 1: Feld „width“ hat ein Anführungszeichen, das nie",
           "línea 1: el campo «width» tiene unas comillas que nunca");
    expect("width,length,covering\n" + QByteArray("-1,2,C1\n").repeated(21),
           "\n  und 1 weiterer Fehler\n", "\n  y 1 error más\n");
    expect("width (m),length,covering\n3.456,2,C1\n",
           "Hinweis: a.csv, Zeile 2: width „3.456“ wird als 346 cm übernommen\n",
           "Nota: a.csv, línea 2: width «3.456» se guarda como 346 cm\n", {S("--metric")});
}

// --- what programs read ---

class SpokenTools : public ToolTest {};

TEST_F(SpokenTools, WriteTheSameForProgramsInEveryLanguage) {
    const QString database =
        MakeDatabase(S("SMITH"), "width,length,covering,base,room,remark\n"
                                 "150,168,C1,W2L1,101,hall\n100,120,C1,,,\n36,36,T1,,,\n");
    const auto written = [this, &database](const char* language) {
        const QByteArray of = " --database " + database.toUtf8() + " --project SMITH --language " +
                              QByteArray(language);
        QByteArray all;
        for (const char* command :
             {"tarn-data export", "tarn-data report --csv -",
              "tarn-estimate --carpet 1 --roll-width 12ft --json -",
              "tarn-order --carpet 1 --roll 12ft --trim 3in --steps 10 --json -",
              "tarn-order --carpet 1 --roll 12ft --trim 3in --steps 10 --csv -"}) {
            const ToolRun run = Shell(command + of);
            EXPECT_EQ(run.Status, 0) << command << run.Error.toStdString();
            all += run.Out;
        }
        return all;
    };
    const QByteArray english = written("en");
    EXPECT_TRUE(english.contains("CARPET-1"));
    EXPECT_EQ(written("de").toStdString(), english.toStdString());
    EXPECT_EQ(written("es").toStdString(), english.toStdString());
}

} // namespace
} // namespace tarn
