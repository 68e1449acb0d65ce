<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
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
        <translation>Uso: curvegrab [ARCHIVO…]
     curvegrab --export SALIDA [--format FORMATO] [--digits N] [--series LISTA]
               [--titles | --no-titles] ARCHIVO…
     curvegrab --info [--json] ARCHIVO…

Curvegrab X convierte la imagen de un gráfico en números. Sin opciones abre cada
ARCHIVO, un documento (.crvgrab) o una imagen, en una ventana propia. Las otras formas
no necesitan pantalla y solo leen documentos.

  --export SALIDA   escribir los datos capturados en el archivo SALIDA, o en la salida
                    estándar si SALIDA es -; varios textos se siguen con una línea
                    vacía entre ellos
  --format FORMATO  text (separado por tabuladores), csv, json o xlsx; sin esta opción
                    decide la extensión de SALIDA, y text vale para cualquier otra
  --digits N        cifras significativas en csv, json y xlsx, de 1 a 17; sin esta
                    opción, tantas como necesite cada número
  --series LISTA    las series que se exportan, por ejemplo 1,3-5; all (por omisión) son
                    todas las series que contienen puntos
  --titles          empezar con una línea de títulos
  --no-titles       escribir solo números; sin ninguna de las dos opciones decide la
                    preferencia «Títulos al guardar»
  --info            mostrar el tamaño de la imagen, los ejes y la cantidad de datos
  --json            mostrarlo como un objeto JSON por línea
  -h, --help        mostrar esta ayuda
  -v, --version     mostrar la versión
  --                tomar todo lo que sigue como ARCHIVO

ARCHIVO puede ser - para leer un documento de la entrada estándar.
Estado de salida: 0 todo hecho, 1 no se pudo leer o escribir un archivo, 2 uso
incorrecto.</translation>
    </message>
    <message id="app.standardInput">
        <source>standard input</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>entrada estándar</translation>
    </message>
    <message id="app.standardOutput">
        <source>standard output</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>salida estándar</translation>
    </message>
    <message id="app.noDisplay">
        <source>There is no display to open a window on. 'curvegrab --export - FILE' prints the data of a document, 'curvegrab --help' tells more.</source>
        <extracomment>On standard error.</extracomment>
        <translation>No hay pantalla en la que abrir una ventana. «curvegrab --export - ARCHIVO» muestra los datos de un documento; «curvegrab --help» explica más.</translation>
    </message>
    <message id="app.damaged">
        <source>Open it in a window to see and save what is left of it.</source>
        <extracomment>On standard error, after what is wrong with a damaged document.</extracomment>
        <translation>Ábralo en una ventana para ver y guardar lo que queda de él.</translation>
    </message>
    <message id="app.export.noPoints">
        <source>The document holds no points yet.</source>
        <extracomment>Why nothing is exported.</extracomment>
        <translation>El documento todavía no contiene puntos.</translation>
    </message>
    <message id="app.export.noneOfThem">
        <source>None of these series holds points.</source>
        <extracomment>Why nothing is exported, when series were asked for.</extracomment>
        <translation>Ninguna de estas series contiene puntos.</translation>
    </message>
    <message id="app.export.emptySeries">
        <source>Series %d holds no points and is left out.</source>
        <extracomment>A warning; %d is the number of the series.</extracomment>
        <translation>La serie %d no contiene puntos y se omite.</translation>
    </message>
    <message id="app.export.nothingWritten">
        <source>Nothing was written.</source>
        <extracomment>On standard error, after the reasons.</extracomment>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message id="app.export.outputIsInput">
        <source>This is one of the documents; choose another name for the text.</source>
        <extracomment>Why a file is not overwritten.</extracomment>
        <translation>Es uno de los documentos; elija otro nombre para el texto.</translation>
    </message>
    <message id="app.usage.hint">
        <source>Try 'curvegrab --help'.</source>
        <extracomment>On standard error, after a wrong use.</extracomment>
        <translation>Pruebe «curvegrab --help».</translation>
    </message>
    <message id="app.usage.unknown">
        <source>There is no option '%1'.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>No existe la opción «%1».</translation>
    </message>
    <message id="app.usage.noValue">
        <source>The option '%1' needs a value behind it.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>La opción «%1» necesita un valor a continuación.</translation>
    </message>
    <message id="app.usage.unwantedValue">
        <source>The option '%1' takes no value.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>La opción «%1» no admite ningún valor.</translation>
    </message>
    <message id="app.usage.series">
        <source>'%1' is no list of series: write numbers from 1 to 10, such as 1,3-5, or all.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>«%1» no es una lista de series: escriba números del 1 al 10, por ejemplo 1,3-5, o all.</translation>
    </message>
    <message id="app.usage.bothTitles">
        <source>--titles and --no-titles exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--titles y --no-titles se excluyen mutuamente.</translation>
    </message>
    <message id="app.usage.exportAndInfo">
        <source>--export and --info exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--export y --info se excluyen mutuamente.</translation>
    </message>
    <message id="app.usage.exportOnly">
        <source>The option '%1' makes sense only together with --export.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>La opción «%1» solo tiene sentido junto con --export.</translation>
    </message>
    <message id="app.usage.infoOnly">
        <source>The option '%1' makes sense only together with --info.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>La opción «%1» solo tiene sentido junto con --info.</translation>
    </message>
    <message id="app.usage.noFile">
        <source>Name at least one document.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>Indique al menos un documento.</translation>
    </message>
    <message id="app.usage.format">
        <source>'%1' is no format: write text, csv, json or xlsx.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>«%1» no es un formato: escriba text, csv, json o xlsx.</translation>
    </message>
    <message id="app.usage.digits">
        <source>'%1' is no number of digits: write a number from 1 to 17.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>«%1» no es una cantidad de cifras: escriba un número del 1 al 17.</translation>
    </message>
    <message id="app.usage.textDigits">
        <source>Text always has six digits: use '%1' with csv, json or xlsx, for example --format csv.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>El texto siempre tiene seis cifras: use «%1» con csv, json o xlsx, por ejemplo --format csv.</translation>
    </message>
    <message id="app.usage.outputIsDocument">
        <source>'%1' is the name of a document, not of a text file. After --export comes the file to write, then the documents.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>«%1» es el nombre de un documento, no de un archivo de texto. Tras --export va el archivo que se escribirá y después los documentos.</translation>
    </message>
    <message id="app.usage.openStandardInput">
        <source>Standard input cannot be opened in a window.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>La entrada estándar no se puede abrir en una ventana.</translation>
    </message>
</context>
</TS>
