<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="plot.window.title">
        <source>%1 – Result</source>
        <extracomment>Title of the plot window; %1 is the name of the document.</extracomment>
        <translation>%1 – 結果</translation>
    </message>
    <message id="plot.view.name">
        <source>Plot of the captured points</source>
        <extracomment>Accessible name of the plot.</extracomment>
        <translation>取得した点のグラフ</translation>
    </message>
    <message id="plot.save">
        <source>&amp;Save Picture…</source>
        <extracomment>Button below the plot.</extracomment>
        <translation>画像を保存(&amp;S)…</translation>
    </message>
    <message id="plot.save.tip">
        <source>Save the plot as an SVG, PDF or PNG file</source>
        <extracomment>Tool tip of the button.</extracomment>
        <translation>グラフを SVG、PDF、PNG のいずれかのファイルに保存します</translation>
    </message>
    <message id="plot.save.message">
        <source>Save the plot</source>
        <extracomment>Title of the save panel.</extracomment>
        <translation>グラフを保存</translation>
    </message>
    <message id="plot.format.svg">
        <source>SVG drawing</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>SVG 図形</translation>
    </message>
    <message id="plot.format.pdf">
        <source>PDF document</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PDF ドキュメント</translation>
    </message>
    <message id="plot.format.png">
        <source>PNG picture</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PNG 画像</translation>
    </message>
    <message id="plot.empty">
        <source>No points have been captured yet.</source>
        <extracomment>Below an empty plot.</extracomment>
        <translation>まだ点を取得していません。</translation>
    </message>
    <message id="plot.leftOut">
        <source>Points that have no place on these axes: %d</source>
        <extracomment>Below the plot; %d is their number. Such points are not above zero on a logarithmic axis, or no numbers.</extracomment>
        <translation>この軸に置けない点の数: %d</translation>
    </message>
    <message id="plot.missing">
        <source>Plots cannot be shown because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>In place of the plot; %1 is a folder.</extracomment>
        <translation>Curvegrab X の一部が見つからないため、グラフを表示できません。プログラムをもう一度インストールしてください。必要な部分の場所: %1</translation>
    </message>
    <message id="plot.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of a message; %1 is the name of a file.</extracomment>
        <translation>「%1」を保存できませんでした</translation>
    </message>
    <message id="plot.noMemory">
        <source>There is not enough memory for a picture of this size. Make the window smaller, and try again.</source>
        <extracomment>Explanation of a message.</extracomment>
        <translation>この大きさの画像にはメモリーが足りません。ウィンドウを小さくしてから、もう一度お試しください。</translation>
    </message>
</context>
</TS>
