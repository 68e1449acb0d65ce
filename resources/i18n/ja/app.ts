<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
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
        <translation>使い方: curvegrab [ファイル…]
        curvegrab --export 出力 [--format 形式] [--digits N] [--series 系列]
                  [--titles | --no-titles] ファイル…
        curvegrab --info [--json] ファイル…

Curvegrab X はグラフの画像を数値に変えます。オプションがなければ、指定された
ドキュメント (.crvgrab) または画像を、それぞれのウィンドウで開きます。
ほかの使い方では画面は必要なく、ドキュメントだけを読み取ります。

  --export 出力     取得したデータをファイルに書き出します。出力が - なら標準出力に
                    書き出します。テキストが複数あれば空行を挟んで続けます
  --format 形式     text (タブ区切り)、csv、json、xlsx。省略すると出力の拡張子に
                    従い、ほかの拡張子では text になります
  --digits N        csv、json、xlsx の有効桁数 (1 から 17)。省略すると、それぞれの
                    数値に必要なだけ書き出します
  --series 系列     書き出す系列。例: 1,3-5。all (省略時) は点のあるすべての系列
  --titles          先頭にタイトル行を付けます
  --no-titles       数値だけを書き出します。どちらも指定しなければ、設定の
                    「保存時にタイトルを付ける」に従います
  --info            画像の大きさ、軸、データの量を表示します
  --json            それを 1 行に 1 つの JSON オブジェクトとして表示します
  -h, --help        このヘルプを表示します
  -v, --version     バージョンを表示します
  --                以降をすべてファイルとして扱います

ファイルを - とすると、標準入力からドキュメントを読み取ります。
終了コード: 0 すべて完了、1 ファイルの読み書きに失敗、2 使い方の誤り。</translation>
    </message>
    <message id="app.standardInput">
        <source>standard input</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>標準入力</translation>
    </message>
    <message id="app.standardOutput">
        <source>standard output</source>
        <extracomment>Stands in messages for the name of a file.</extracomment>
        <translation>標準出力</translation>
    </message>
    <message id="app.noDisplay">
        <source>There is no display to open a window on. 'curvegrab --export - FILE' prints the data of a document, 'curvegrab --help' tells more.</source>
        <extracomment>On standard error.</extracomment>
        <translation>ウィンドウを開く画面がありません。「curvegrab --export - ファイル」でドキュメントのデータを出力できます。詳しくは「curvegrab --help」をご覧ください。</translation>
    </message>
    <message id="app.damaged">
        <source>Open it in a window to see and save what is left of it.</source>
        <extracomment>On standard error, after what is wrong with a damaged document.</extracomment>
        <translation>ウィンドウで開くと、残っている内容を確認して保存できます。</translation>
    </message>
    <message id="app.export.noPoints">
        <source>The document holds no points yet.</source>
        <extracomment>Why nothing is exported.</extracomment>
        <translation>ドキュメントにはまだ点がありません。</translation>
    </message>
    <message id="app.export.noneOfThem">
        <source>None of these series holds points.</source>
        <extracomment>Why nothing is exported, when series were asked for.</extracomment>
        <translation>指定された系列には点がありません。</translation>
    </message>
    <message id="app.export.emptySeries">
        <source>Series %d holds no points and is left out.</source>
        <extracomment>A warning; %d is the number of the series.</extracomment>
        <translation>系列 %d には点がないため、省きます。</translation>
    </message>
    <message id="app.export.nothingWritten">
        <source>Nothing was written.</source>
        <extracomment>On standard error, after the reasons.</extracomment>
        <translation>何も書き出しませんでした。</translation>
    </message>
    <message id="app.export.outputIsInput">
        <source>This is one of the documents; choose another name for the text.</source>
        <extracomment>Why a file is not overwritten.</extracomment>
        <translation>これはドキュメントの一つです。テキストには別の名前を付けてください。</translation>
    </message>
    <message id="app.usage.hint">
        <source>Try 'curvegrab --help'.</source>
        <extracomment>On standard error, after a wrong use.</extracomment>
        <translation>「curvegrab --help」をお試しください。</translation>
    </message>
    <message id="app.usage.unknown">
        <source>There is no option '%1'.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>「%1」というオプションはありません。</translation>
    </message>
    <message id="app.usage.noValue">
        <source>The option '%1' needs a value behind it.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>オプション「%1」には値が必要です。</translation>
    </message>
    <message id="app.usage.unwantedValue">
        <source>The option '%1' takes no value.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>オプション「%1」に値は付けられません。</translation>
    </message>
    <message id="app.usage.series">
        <source>'%1' is no list of series: write numbers from 1 to 10, such as 1,3-5, or all.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>「%1」は系列の指定ではありません。1,3-5 のように 1 から 10 の番号を書くか、all としてください。</translation>
    </message>
    <message id="app.usage.bothTitles">
        <source>--titles and --no-titles exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--titles と --no-titles は同時に指定できません。</translation>
    </message>
    <message id="app.usage.exportAndInfo">
        <source>--export and --info exclude each other.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>--export と --info は同時に指定できません。</translation>
    </message>
    <message id="app.usage.exportOnly">
        <source>The option '%1' makes sense only together with --export.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>オプション「%1」は --export と一緒に指定してください。</translation>
    </message>
    <message id="app.usage.infoOnly">
        <source>The option '%1' makes sense only together with --info.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>オプション「%1」は --info と一緒に指定してください。</translation>
    </message>
    <message id="app.usage.noFile">
        <source>Name at least one document.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>ドキュメントを一つ以上指定してください。</translation>
    </message>
    <message id="app.usage.format">
        <source>'%1' is no format: write text, csv, json or xlsx.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>「%1」は形式ではありません。text、csv、json、xlsx のいずれかを書いてください。</translation>
    </message>
    <message id="app.usage.digits">
        <source>'%1' is no number of digits: write a number from 1 to 17.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>「%1」は桁数ではありません。1 から 17 の数を書いてください。</translation>
    </message>
    <message id="app.usage.textDigits">
        <source>Text always has six digits: use '%1' with csv, json or xlsx, for example --format csv.</source>
        <extracomment>%1 is the option.</extracomment>
        <translation>テキストは常に 6 桁です。「%1」は csv、json、xlsx と一緒に、例えば --format csv として使ってください。</translation>
    </message>
    <message id="app.usage.outputIsDocument">
        <source>'%1' is the name of a document, not of a text file. After --export comes the file to write, then the documents.</source>
        <extracomment>%1 is what was typed.</extracomment>
        <translation>「%1」はテキストファイルではなくドキュメントの名前です。--export の後には、書き出すファイル、ドキュメントの順に指定してください。</translation>
    </message>
    <message id="app.usage.openStandardInput">
        <source>Standard input cannot be opened in a window.</source>
        <extracomment>Wrong use of the command line.</extracomment>
        <translation>標準入力はウィンドウで開けません。</translation>
    </message>
</context>
</TS>
