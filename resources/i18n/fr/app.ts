<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>Utilisation : curvegrab [FICHIER…]
       curvegrab --export SORTIE [--format FORMAT] [--digits N] [--series LISTE]
                 [--titles | --no-titles] FICHIER…
       curvegrab --info [--json] FICHIER…

Curvegrab X transforme l’image d’un graphique en nombres. Sans option, il ouvre chaque
FICHIER, un document (.crvgrab) ou une image, dans une fenêtre à part. Les autres formes
n’ont pas besoin d’écran et ne lisent que des documents.

  --export SORTIE   écrire les données relevées dans le fichier SORTIE, ou sur la sortie
                    standard si SORTIE est - ; plusieurs textes se suivent, séparés
                    par une ligne vide
  --format FORMAT   text (séparé par des tabulations), csv, json ou xlsx ; sans cette
                    option, l’extension de SORTIE décide, et text vaut pour toute autre
  --digits N        chiffres significatifs en csv, json et xlsx, de 1 à 17 ; sans cette
                    option, autant que chaque nombre en demande
  --series LISTE    les séries à exporter, par exemple 1,3-5 ; all (par défaut) désigne
                    chaque série qui contient des points
  --titles          commencer par une ligne de titres
  --no-titles       n’écrire que des nombres ; sans aucune des deux, la préférence
                    « Titres à l’enregistrement » décide
  --info            afficher la taille de l’image, les axes et la quantité de données
  --json            les afficher comme un objet JSON par ligne
  -h, --help        afficher cette aide
  -v, --version     afficher la version
  --                prendre tout ce qui suit comme FICHIER

FICHIER peut être - pour lire un document sur l’entrée standard.
Code de retour : 0 tout est fait, 1 un fichier n’a pas pu être lu ou écrit, 2 mauvaise
utilisation.</translation>
    </message>
    <message id="app.standardInput">
        <source>standard input</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>entrée standard</translation>
    </message>
    <message id="app.standardOutput">
        <source>standard output</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>sortie standard</translation>
    </message>
    <message id="app.noDisplay">
        <source>There is no display to open a window on. 'curvegrab --export - FILE' prints the data of a document, 'curvegrab --help' tells more.</source>
        <extracomment>On standard error.</extracomment>
        <translation>Il n’y a pas d’écran où ouvrir une fenêtre. « curvegrab --export - FICHIER » affiche les données d’un document, « curvegrab --help » en dit plus.</translation>
    </message>
    <message id="app.damaged">
        <source>Open it in a window to see and save what is left of it.</source>
        <extracomment>On standard error, after what is wrong with a damaged document.</extracomment>
        <translation>Ouvrez-le dans une fenêtre pour voir et enregistrer ce qu’il en reste.</translation>
    </message>
    <message id="app.export.noPoints">
        <source>The document holds no points yet.</source>
        <extracomment>Why nothing is exported.</extracomment>
        <translation>Le document ne contient pas encore de points.</translation>
    </message>
    <message id="app.export.noneOfThem">
        <source>None of these series holds points.</source>
        <extracomment>Why nothing is exported, when series were asked for.</extracomment>
        <translation>Aucune de ces séries ne contient de points.</translation>
    </message>
    <message id="app.export.emptySeries">
        <source>Series %d holds no points and is left out.</source>
        <extracomment>A warning; %d is the number of the series.</extracomment>
        <translation>La série %d ne contient pas de points et est omise.</translation>
    </message>
    <message id="app.export.nothingWritten">
        <source>Nothing was written.</source>
        <extracomment>On standard error, after the reasons.</extracomment>
        <translation>Rien n’a été écrit.</translation>
    </message>
    <message id="app.export.outputIsInput">
        <source>This is one of the documents; choose another name for the text.</source>
        <extracomment>Why a file is not overwritten.</extracomment>
        <translation>C’est l’un des documents ; choisissez un autre nom pour le texte.</translation>
    </message>
    <message id="app.usage.hint">
        <source>Try 'curvegrab --help'.</source>
        <extracomment>On standard error, after a wrong use.</extracomment>
        <translation>Essayez « curvegrab --help ».</translation>
    </message>
    <message id="app.usage.unknown">
        <source>There is no option '%1'.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>L’option « %1 » n’existe pas.</translation>
    </message>
    <message id="app.usage.noValue">
        <source>The option '%1' needs a value behind it.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>L’option « %1 » doit être suivie d’une valeur.</translation>
    </message>
    <message id="app.usage.unwantedValue">
        <source>The option '%1' takes no value.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>L’option « %1 » ne prend pas de valeur.</translation>
    </message>
    <message id="app.usage.series">
        <source>'%1' is no list of series: write numbers from 1 to 10, such as 1,3-5, or all.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>« %1 » n’est pas une liste de séries : écrivez des nombres de 1 à 10, par exemple 1,3-5, ou all.</translation>
    </message>
    <message id="app.usage.bothTitles">
        <source>--titles and --no-titles exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--titles et --no-titles s’excluent.</translation>
    </message>
    <message id="app.usage.exportAndInfo">
        <source>--export and --info exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--export et --info s’excluent.</translation>
    </message>
    <message id="app.usage.exportOnly">
        <source>The option '%1' makes sense only together with --export.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>L’option « %1 » n’a de sens qu’avec --export.</translation>
    </message>
    <message id="app.usage.infoOnly">
        <source>The option '%1' makes sense only together with --info.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>L’option « %1 » n’a de sens qu’avec --info.</translation>
    </message>
    <message id="app.usage.noFile">
        <source>Name at least one document.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>Indiquez au moins un document.</translation>
    </message>
    <message id="app.usage.format">
        <source>'%1' is no format: write text, csv, json or xlsx.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>« %1 » n’est pas un format : écrivez text, csv, json ou xlsx.</translation>
    </message>
    <message id="app.usage.digits">
        <source>'%1' is no number of digits: write a number from 1 to 17.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>« %1 » n’est pas un nombre de chiffres : écrivez un nombre de 1 à 17.</translation>
    </message>
    <message id="app.usage.textDigits">
        <source>Text always has six digits: use '%1' with csv, json or xlsx, for example --format csv.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>Le texte a toujours six chiffres : employez « %1 » avec csv, json ou xlsx, par exemple --format csv.</translation>
    </message>
    <message id="app.usage.outputIsDocument">
        <source>'%1' is the name of a document, not of a text file. After --export comes the file to write, then the documents.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>« %1 » est le nom d’un document, pas d’un fichier texte. Après --export vient le fichier à écrire, puis les documents.</translation>
    </message>
    <message id="app.usage.openStandardInput">
        <source>Standard input cannot be opened in a window.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>L’entrée standard ne peut pas être ouverte dans une fenêtre.</translation>
    </message>
</context>
</TS>
