<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="app.help">
        <source>Usage: curvegrab [FILE…]
       curvegrab --export OUT [--format FORMAT] [--digits N] [--series LIST]
                 [--titles | --no-titles] FILE…
       curvegrab --info [--json] FILE…

Curvegrab X turns the picture of a chart into numbers. Without an option it opens each
FILE, a document (.crvgrab) or a picture, in a window of its own. The other forms need
no display and read documents only.

  --export OUT      write the captured data to the file OUT, or to standard output if
                    OUT is -; several texts follow each other with an empty line in
                    between
  --format FORMAT   text (tab-separated), csv, json or xlsx; without it the extension
                    of OUT decides, and text holds for every other one
  --digits N        significant digits in csv, json and xlsx, 1 to 17; without it as
                    many as each number needs
  --series LIST     the series to export, for example 1,3-5; all (the default) stands
                    for every series that holds points
  --titles          begin with a line of titles
  --no-titles       write numbers only; without either option the preference
                    "Titles when saving" decides
  --info            print the size of the picture, the axes and the amount of data
  --json            print that as one JSON object per line
  -h, --help        print this help
  -v, --version     print the version
  --                take everything that follows as a FILE

FILE may be - to read a document from standard input.
Exit status: 0 all done, 1 a file could not be read or written, 2 wrong use.</source>
        <extracomment>The output of --help, at most 88 characters wide. Options stay as they are.</extracomment>
        <translation>Aufruf: curvegrab [DATEI…]
        curvegrab --export AUSGABE [--format FORMAT] [--digits N] [--series LISTE]
                  [--titles | --no-titles] DATEI…
        curvegrab --info [--json] DATEI…

Curvegrab X macht aus dem Bild eines Diagramms Zahlen. Ohne Option öffnet es jede DATEI,
ein Dokument (.crvgrab) oder ein Bild, in einem eigenen Fenster. Die anderen Formen
brauchen keinen Bildschirm und lesen nur Dokumente.

  --export AUSGABE  die erfassten Daten in die Datei AUSGABE schreiben oder, ist AUSGABE
                    ein -, in die Standardausgabe; mehrere Texte folgen einander mit
                    einer Leerzeile dazwischen
  --format FORMAT   text (mit Tabulatoren), csv, json oder xlsx; ohne die Option
                    entscheidet die Endung von AUSGABE, und für jede andere gilt text
  --digits N        gültige Ziffern in csv, json und xlsx, 1 bis 17; ohne die Option
                    so viele, wie jede Zahl braucht
  --series LISTE    die Datenreihen, etwa 1,3-5; all (die Vorgabe) steht für jede
                    Datenreihe, die Punkte enthält
  --titles          mit einer Titelzeile beginnen
  --no-titles       nur Zahlen schreiben; ohne beide Optionen entscheidet die
                    Einstellung „Titel beim Speichern“
  --info            Größe des Bildes, Achsen und Menge der Daten ausgeben
  --json            dies als ein JSON-Objekt je Zeile ausgeben
  -h, --help        diese Hilfe ausgeben
  -v, --version     die Version ausgeben
  --                alles Folgende als DATEI nehmen

DATEI darf - sein, um ein Dokument von der Standardeingabe zu lesen.
Rückgabewert: 0 alles erledigt, 1 eine Datei ließ sich nicht lesen oder schreiben,
2 falscher Aufruf.</translation>
    </message>
    <message id="app.standardInput">
        <source>standard input</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>Standardeingabe</translation>
    </message>
    <message id="app.standardOutput">
        <source>standard output</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>Standardausgabe</translation>
    </message>
    <message id="app.noDisplay">
        <source>There is no display to open a window on. 'curvegrab --export - FILE' prints the data of a document, 'curvegrab --help' tells more.</source>
        <extracomment>On standard error.</extracomment>
        <translation>Es gibt keinen Bildschirm für ein Fenster. „curvegrab --export - DATEI“ gibt die Daten eines Dokuments aus, „curvegrab --help“ sagt mehr.</translation>
    </message>
    <message id="app.damaged">
        <source>Open it in a window to see and save what is left of it.</source>
        <extracomment>On standard error, after what is wrong with a damaged document.</extracomment>
        <translation>Öffnen Sie es in einem Fenster, um zu sehen und zu speichern, was davon übrig ist.</translation>
    </message>
    <message id="app.export.noPoints">
        <source>The document holds no points yet.</source>
        <extracomment>Why nothing is exported.</extracomment>
        <translation>Das Dokument enthält noch keine Punkte.</translation>
    </message>
    <message id="app.export.noneOfThem">
        <source>None of these series holds points.</source>
        <extracomment>Why nothing is exported, when series were asked for.</extracomment>
        <translation>Keine dieser Datenreihen enthält Punkte.</translation>
    </message>
    <message id="app.export.emptySeries">
        <source>Series %d holds no points and is left out.</source>
        <extracomment>A warning; %d is the number of the series.</extracomment>
        <translation>Datenreihe %d enthält keine Punkte und wird ausgelassen.</translation>
    </message>
    <message id="app.export.nothingWritten">
        <source>Nothing was written.</source>
        <extracomment>On standard error, after the reasons.</extracomment>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message id="app.export.outputIsInput">
        <source>This is one of the documents; choose another name for the text.</source>
        <extracomment>Why a file is not overwritten.</extracomment>
        <translation>Das ist eines der Dokumente; wählen Sie einen anderen Namen für den Text.</translation>
    </message>
    <message id="app.usage.hint">
        <source>Try 'curvegrab --help'.</source>
        <extracomment>On standard error, after a wrong use.</extracomment>
        <translation>Hilfe gibt „curvegrab --help“.</translation>
    </message>
    <message id="app.usage.unknown">
        <source>There is no option '%1'.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>Die Option „%1“ gibt es nicht.</translation>
    </message>
    <message id="app.usage.noValue">
        <source>The option '%1' needs a value behind it.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Hinter der Option „%1“ fehlt ein Wert.</translation>
    </message>
    <message id="app.usage.unwantedValue">
        <source>The option '%1' takes no value.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Die Option „%1“ nimmt keinen Wert an.</translation>
    </message>
    <message id="app.usage.series">
        <source>'%1' is no list of series: write numbers from 1 to 10, such as 1,3-5, or all.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>„%1“ ist keine Liste von Datenreihen: Schreiben Sie Zahlen von 1 bis 10, etwa 1,3-5, oder all.</translation>
    </message>
    <message id="app.usage.bothTitles">
        <source>--titles and --no-titles exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--titles und --no-titles schließen einander aus.</translation>
    </message>
    <message id="app.usage.exportAndInfo">
        <source>--export and --info exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--export und --info schließen einander aus.</translation>
    </message>
    <message id="app.usage.exportOnly">
        <source>The option '%1' makes sense only together with --export.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Die Option „%1“ ist nur zusammen mit --export sinnvoll.</translation>
    </message>
    <message id="app.usage.infoOnly">
        <source>The option '%1' makes sense only together with --info.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Die Option „%1“ ist nur zusammen mit --info sinnvoll.</translation>
    </message>
    <message id="app.usage.noFile">
        <source>Name at least one document.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>Nennen Sie mindestens ein Dokument.</translation>
    </message>
    <message id="app.usage.format">
        <source>'%1' is no format: write text, csv, json or xlsx.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>„%1“ ist kein Format: Schreiben Sie text, csv, json oder xlsx.</translation>
    </message>
    <message id="app.usage.digits">
        <source>'%1' is no number of digits: write a number from 1 to 17.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>„%1“ ist keine Anzahl von Ziffern: Schreiben Sie eine Zahl von 1 bis 17.</translation>
    </message>
    <message id="app.usage.textDigits">
        <source>Text always has six digits: use '%1' with csv, json or xlsx, for example --format csv.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Text hat immer sechs Ziffern: Verwenden Sie „%1“ mit csv, json oder xlsx, etwa --format csv.</translation>
    </message>
    <message id="app.usage.outputIsDocument">
        <source>'%1' is the name of a document, not of a text file. After --export comes the file to write, then the documents.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>„%1“ ist der Name eines Dokuments, nicht einer Textdatei. Nach --export kommt die Datei, die geschrieben wird, dann die Dokumente.</translation>
    </message>
    <message id="app.usage.openStandardInput">
        <source>Standard input cannot be opened in a window.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>Die Standardeingabe lässt sich nicht in einem Fenster öffnen.</translation>
    </message>
</context>
</TS>
