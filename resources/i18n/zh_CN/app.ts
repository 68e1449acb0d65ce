<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
        <translation>用法：curvegrab [文件…]
      curvegrab --export 输出 [--format 格式] [--digits N] [--series 列表]
                [--titles | --no-titles] 文件…
      curvegrab --info [--json] 文件…

Curvegrab X 将图表的图片变成数字。不带选项时，它在各自的窗口中打开每个文件，
即文档 (.crvgrab) 或图片。其他用法不需要显示器，并且只读取文档。

  --export 输出     将采集的数据写入文件；如果输出为 -，则写到标准输出。
                    多个文本依次排列，中间隔一个空行
  --format 格式     text（制表符分隔）、csv、json 或 xlsx；省略时由输出的扩展名
                    决定，其他扩展名一律为 text
  --digits N        csv、json 和 xlsx 的有效位数，1 到 17；省略时按每个数字的需要
  --series 列表     要导出的系列，例如 1,3-5；all（默认）表示所有含有点的系列
  --titles          以标题行开头
  --no-titles       只写数字；两个选项都不用时，由首选项“保存时包含标题”决定
  --info            显示图片大小、坐标轴和数据量
  --json            以每行一个 JSON 对象的形式显示
  -h, --help        显示此帮助
  -v, --version     显示版本
  --                将其后的一切都当作文件

文件可以是 -，表示从标准输入读取文档。
退出状态：0 全部完成，1 文件无法读取或写入，2 用法错误。</translation>
    </message>
    <message id="app.standardInput">
        <source>standard input</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>标准输入</translation>
    </message>
    <message id="app.standardOutput">
        <source>standard output</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>标准输出</translation>
    </message>
    <message id="app.noDisplay">
        <source>There is no display to open a window on. 'curvegrab --export - FILE' prints the data of a document, 'curvegrab --help' tells more.</source>
        <extracomment>On standard error.</extracomment>
        <translation>没有可供打开窗口的显示器。“curvegrab --export - 文件”可输出文档中的数据，详情见“curvegrab --help”。</translation>
    </message>
    <message id="app.damaged">
        <source>Open it in a window to see and save what is left of it.</source>
        <extracomment>On standard error, after what is wrong with a damaged document.</extracomment>
        <translation>请在窗口中打开它，以查看并保存剩余的内容。</translation>
    </message>
    <message id="app.export.noPoints">
        <source>The document holds no points yet.</source>
        <extracomment>Why nothing is exported.</extracomment>
        <translation>文档中还没有点。</translation>
    </message>
    <message id="app.export.noneOfThem">
        <source>None of these series holds points.</source>
        <extracomment>Why nothing is exported, when series were asked for.</extracomment>
        <translation>指定的系列中都没有点。</translation>
    </message>
    <message id="app.export.emptySeries">
        <source>Series %d holds no points and is left out.</source>
        <extracomment>A warning; %d is the number of the series.</extracomment>
        <translation>系列 %d 中没有点，已略过。</translation>
    </message>
    <message id="app.export.nothingWritten">
        <source>Nothing was written.</source>
        <extracomment>On standard error, after the reasons.</extracomment>
        <translation>没有写出任何内容。</translation>
    </message>
    <message id="app.export.outputIsInput">
        <source>This is one of the documents; choose another name for the text.</source>
        <extracomment>Why a file is not overwritten.</extracomment>
        <translation>这是其中一个文档，请为文本选择其他名称。</translation>
    </message>
    <message id="app.usage.hint">
        <source>Try 'curvegrab --help'.</source>
        <extracomment>On standard error, after a wrong use.</extracomment>
        <translation>请试试“curvegrab --help”。</translation>
    </message>
    <message id="app.usage.unknown">
        <source>There is no option '%1'.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>没有选项“%1”。</translation>
    </message>
    <message id="app.usage.noValue">
        <source>The option '%1' needs a value behind it.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>选项“%1”后面需要一个值。</translation>
    </message>
    <message id="app.usage.unwantedValue">
        <source>The option '%1' takes no value.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>选项“%1”不接受值。</translation>
    </message>
    <message id="app.usage.series">
        <source>'%1' is no list of series: write numbers from 1 to 10, such as 1,3-5, or all.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>“%1”不是系列列表：请写 1 到 10 的数字，例如 1,3-5，或者写 all。</translation>
    </message>
    <message id="app.usage.bothTitles">
        <source>--titles and --no-titles exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--titles 和 --no-titles 不能同时使用。</translation>
    </message>
    <message id="app.usage.exportAndInfo">
        <source>--export and --info exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--export 和 --info 不能同时使用。</translation>
    </message>
    <message id="app.usage.exportOnly">
        <source>The option '%1' makes sense only together with --export.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>选项“%1”只能与 --export 一起使用。</translation>
    </message>
    <message id="app.usage.infoOnly">
        <source>The option '%1' makes sense only together with --info.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>选项“%1”只能与 --info 一起使用。</translation>
    </message>
    <message id="app.usage.noFile">
        <source>Name at least one document.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>请至少指定一个文档。</translation>
    </message>
    <message id="app.usage.format">
        <source>'%1' is no format: write text, csv, json or xlsx.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>“%1”不是格式：请写 text、csv、json 或 xlsx。</translation>
    </message>
    <message id="app.usage.digits">
        <source>'%1' is no number of digits: write a number from 1 to 17.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>“%1”不是位数：请写 1 到 17 的数字。</translation>
    </message>
    <message id="app.usage.textDigits">
        <source>Text always has six digits: use '%1' with csv, json or xlsx, for example --format csv.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>文本始终为六位有效数字：请将“%1”与 csv、json 或 xlsx 一起使用，例如 --format csv。</translation>
    </message>
    <message id="app.usage.outputIsDocument">
        <source>'%1' is the name of a document, not of a text file. After --export comes the file to write, then the documents.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>“%1”是文档的名称，而不是文本文件。--export 之后先写要写出的文件，再写文档。</translation>
    </message>
    <message id="app.usage.openStandardInput">
        <source>Standard input cannot be opened in a window.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>标准输入不能在窗口中打开。</translation>
    </message>
</context>
</TS>
