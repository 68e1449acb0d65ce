<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="prefs.title">
        <source>Preferences</source>
        <extracomment>Title of the preferences window.</extracomment>
        <translation>設定</translation>
    </message>
    <message id="prefs.axes">
        <source>Axes and anchors</source>
        <extracomment>Title of a group.</extracomment>
        <translation>軸とアンカー</translation>
    </message>
    <message id="prefs.axis.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>色:</translation>
    </message>
    <message id="prefs.color.tip">
        <source>Click to choose a colour and how opaque it is</source>
        <extracomment>Tool tip of every colour button.</extracomment>
        <translation>クリックして色と不透明度を選びます</translation>
    </message>
    <message id="prefs.axis.color.name">
        <source>Axis colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>軸の色</translation>
    </message>
    <message id="prefs.axis.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>線の太さ:</translation>
    </message>
    <message id="prefs.axis.thickness.tip">
        <source>How thick the axes are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>軸を描く線の太さ</translation>
    </message>
    <message id="prefs.axis.thickness.name">
        <source>Axis thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>軸の太さ</translation>
    </message>
    <message id="prefs.unit.thickness">
        <source>1 – 5 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>1 – 5 ポイント</translation>
    </message>
    <message id="prefs.axis.anchor">
        <source>Anchor size:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>アンカーの大きさ:</translation>
    </message>
    <message id="prefs.axis.anchor.tip">
        <source>How large the squares at the ends of the axes are</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>軸の端にある四角の大きさ</translation>
    </message>
    <message id="prefs.axis.anchor.name">
        <source>Anchor size</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>アンカーの大きさ</translation>
    </message>
    <message id="prefs.unit.size">
        <source>3 – 15 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>3 – 15 ポイント</translation>
    </message>
    <message id="prefs.guide">
        <source>Guide lines</source>
        <extracomment>Title of a group: the lines that follow the pointer.</extracomment>
        <translation>ガイド線</translation>
    </message>
    <message id="prefs.guide.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>色:</translation>
    </message>
    <message id="prefs.guide.color.name">
        <source>Guide colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>ガイド線の色</translation>
    </message>
    <message id="prefs.guide.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>線の太さ:</translation>
    </message>
    <message id="prefs.guide.thickness.tip">
        <source>How thick the lines that follow the pointer are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>ポインターに追従する線の太さ</translation>
    </message>
    <message id="prefs.guide.thickness.name">
        <source>Guide thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>ガイド線の太さ</translation>
    </message>
    <message id="prefs.guide.interval">
        <source>Follow the pointer every:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>ポインター追従の間隔:</translation>
    </message>
    <message id="prefs.guide.interval.tip">
        <source>How often guide and values follow the pointer: a shorter time is smoother, a longer one spares the battery</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>ガイド線と値がポインターに追従する間隔。短いほど滑らかで、長いほどバッテリーを節約します</translation>
    </message>
    <message id="prefs.guide.interval.name">
        <source>Guide interval</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>ガイド線の更新間隔</translation>
    </message>
    <message id="prefs.unit.interval">
        <source>0.01 – 0.2 s</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>0.01 – 0.2 秒</translation>
    </message>
    <message id="prefs.pdf">
        <source>PDF pages</source>
        <extracomment>Title of a group.</extracomment>
        <translation>PDF のページ</translation>
    </message>
    <message id="prefs.pdf.scale">
        <source>Read at:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>読み取り倍率:</translation>
    </message>
    <message id="prefs.pdf.scale.tip">
        <source>How large a PDF page becomes as a picture: a larger scale shows finer detail and needs more memory</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>PDF のページを画像にするときの大きさ。倍率が大きいほど細部まで見え、多くのメモリーを使います</translation>
    </message>
    <message id="prefs.pdf.scale.name">
        <source>PDF reading scale</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>PDF の読み取り倍率</translation>
    </message>
    <message id="prefs.unit.percent">
        <source>100 – 800 %</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>100 – 800 %</translation>
    </message>
    <message id="prefs.export">
        <source>Data as text</source>
        <extracomment>Title of a group.</extracomment>
        <translation>テキストとしてのデータ</translation>
    </message>
    <message id="prefs.export.copy.tip">
        <source>Begin copied data with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>コピーするデータの先頭にタイトル行を付けます</translation>
    </message>
    <message id="prefs.export.copy">
        <source>Titles when co&amp;pying</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>コピー時にタイトルを付ける(&amp;P)</translation>
    </message>
    <message id="prefs.export.save.tip">
        <source>Begin saved text files with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>保存するテキストファイルの先頭にタイトル行を付けます</translation>
    </message>
    <message id="prefs.export.save">
        <source>Titles when &amp;saving</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>保存時にタイトルを付ける(&amp;S)</translation>
    </message>
    <message id="prefs.markers">
        <source>Markers of the series</source>
        <extracomment>Title of a group.</extracomment>
        <translation>系列のマーカー</translation>
    </message>
    <message id="prefs.markers.color">
        <source>Colour</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>色</translation>
    </message>
    <message id="prefs.markers.shape">
        <source>Shape</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>形</translation>
    </message>
    <message id="prefs.markers.size">
        <source>Size</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>大きさ</translation>
    </message>
    <message id="prefs.series.1">
        <source>Series 1</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 1</translation>
    </message>
    <message id="prefs.series.1.color">
        <source>Colour of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 1 の色</translation>
    </message>
    <message id="prefs.series.1.shape">
        <source>Marker shape of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 1 のマーカーの形</translation>
    </message>
    <message id="prefs.markers.size.tip">
        <source>Size of the markers, 3 to 15 points</source>
        <extracomment>Tool tip.</extracomment>
        <translation>マーカーの大きさ (3 ～ 15 ポイント)</translation>
    </message>
    <message id="prefs.series.1.size">
        <source>Marker size of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 1 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.2">
        <source>Series 2</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 2</translation>
    </message>
    <message id="prefs.series.2.color">
        <source>Colour of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 2 の色</translation>
    </message>
    <message id="prefs.series.2.shape">
        <source>Marker shape of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 2 のマーカーの形</translation>
    </message>
    <message id="prefs.series.2.size">
        <source>Marker size of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 2 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.3">
        <source>Series 3</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 3</translation>
    </message>
    <message id="prefs.series.3.color">
        <source>Colour of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 3 の色</translation>
    </message>
    <message id="prefs.series.3.shape">
        <source>Marker shape of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 3 のマーカーの形</translation>
    </message>
    <message id="prefs.series.3.size">
        <source>Marker size of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 3 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.4">
        <source>Series 4</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 4</translation>
    </message>
    <message id="prefs.series.4.color">
        <source>Colour of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 4 の色</translation>
    </message>
    <message id="prefs.series.4.shape">
        <source>Marker shape of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 4 のマーカーの形</translation>
    </message>
    <message id="prefs.series.4.size">
        <source>Marker size of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 4 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.5">
        <source>Series 5</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 5</translation>
    </message>
    <message id="prefs.series.5.color">
        <source>Colour of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 5 の色</translation>
    </message>
    <message id="prefs.series.5.shape">
        <source>Marker shape of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 5 のマーカーの形</translation>
    </message>
    <message id="prefs.series.5.size">
        <source>Marker size of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 5 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.6">
        <source>Series 6</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 6</translation>
    </message>
    <message id="prefs.series.6.color">
        <source>Colour of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 6 の色</translation>
    </message>
    <message id="prefs.series.6.shape">
        <source>Marker shape of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 6 のマーカーの形</translation>
    </message>
    <message id="prefs.series.6.size">
        <source>Marker size of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 6 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.7">
        <source>Series 7</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 7</translation>
    </message>
    <message id="prefs.series.7.color">
        <source>Colour of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 7 の色</translation>
    </message>
    <message id="prefs.series.7.shape">
        <source>Marker shape of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 7 のマーカーの形</translation>
    </message>
    <message id="prefs.series.7.size">
        <source>Marker size of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 7 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.8">
        <source>Series 8</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 8</translation>
    </message>
    <message id="prefs.series.8.color">
        <source>Colour of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 8 の色</translation>
    </message>
    <message id="prefs.series.8.shape">
        <source>Marker shape of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 8 のマーカーの形</translation>
    </message>
    <message id="prefs.series.8.size">
        <source>Marker size of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 8 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.9">
        <source>Series 9</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 9</translation>
    </message>
    <message id="prefs.series.9.color">
        <source>Colour of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 9 の色</translation>
    </message>
    <message id="prefs.series.9.shape">
        <source>Marker shape of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 9 のマーカーの形</translation>
    </message>
    <message id="prefs.series.9.size">
        <source>Marker size of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 9 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.series.10">
        <source>Series 10</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>系列 10</translation>
    </message>
    <message id="prefs.series.10.color">
        <source>Colour of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 10 の色</translation>
    </message>
    <message id="prefs.series.10.shape">
        <source>Marker shape of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 10 のマーカーの形</translation>
    </message>
    <message id="prefs.series.10.size">
        <source>Marker size of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>系列 10 のマーカーの大きさ</translation>
    </message>
    <message id="prefs.markers.size.unit">
        <source>Sizes are 3 to 15 points on the screen.</source>
        <extracomment>Note below the ten rows.</extracomment>
        <translation>大きさは画面上で 3 ～ 15 ポイントです。</translation>
    </message>
    <message id="prefs.help">
        <source>&amp;Help</source>
        <extracomment>Button.</extracomment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="prefs.help.tip">
        <source>Explain the preferences</source>
        <extracomment>Tool tip.</extracomment>
        <translation>設定の説明を表示します</translation>
    </message>
    <message id="prefs.factory">
        <source>&amp;Factory Settings</source>
        <extracomment>Button.</extracomment>
        <translation>初期設定(&amp;F)</translation>
    </message>
    <message id="prefs.factory.tip">
        <source>Show the settings that the program came with; nothing is stored until OK</source>
        <extracomment>Tool tip.</extracomment>
        <translation>プログラムの初期設定を表示します。OK を押すまで何も保存されません</translation>
    </message>
    <message id="prefs.cancel.tip">
        <source>Close and leave every setting as it was</source>
        <extracomment>Tool tip.</extracomment>
        <translation>設定を変えずに閉じます</translation>
    </message>
    <message id="prefs.ok.tip">
        <source>Store the settings and show them in every window</source>
        <extracomment>Tool tip.</extracomment>
        <translation>設定を保存し、すべてのウィンドウに反映します</translation>
    </message>
    <message id="prefs.color.value">
        <source>%1, opacity %2 %</source>
        <extracomment>What a colour button tells screen readers: the colour in hexadecimal (%1), its opacity in percent (%2).</extracomment>
        <translation>%1、不透明度 %2 %</translation>
    </message>
    <message id="prefs.shape.0">
        <source>Filled square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>塗りつぶしの四角</translation>
    </message>
    <message id="prefs.shape.1">
        <source>Open square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>中抜きの四角</translation>
    </message>
    <message id="prefs.shape.2">
        <source>Filled circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>塗りつぶしの丸</translation>
    </message>
    <message id="prefs.shape.3">
        <source>Open circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>中抜きの丸</translation>
    </message>
    <message id="prefs.color.title">
        <source>Choose a colour</source>
        <extracomment>Title of the colour chooser.</extracomment>
        <translation>色を選択</translation>
    </message>
</context>
</TS>
