<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>軸</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>軸の種類</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>グラフの軸の種類</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>平行軸</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>四角形軸</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>極座標軸</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>標準(&amp;U)</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>アンカーを標準の位置に戻します</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>画像全体(&amp;R)</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>軸を画像全体に広げ、ピクセルで読み取ります</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>X 軸</translation>
    </message>
    <message id="document.axes.minx">
        <source>M&amp;in</source>
        <translation>最小(&amp;I)</translation>
    </message>
    <message id="document.axes.maxx">
        <source>Ma&amp;x</source>
        <translation>最大(&amp;X)</translation>
    </message>
    <message id="document.axes.miny">
        <source>Mi&amp;n</source>
        <translation>最小(&amp;N)</translation>
    </message>
    <message id="document.axes.maxy">
        <source>&amp;Max</source>
        <translation>最大(&amp;M)</translation>
    </message>
    <message id="document.axes.minx.name">
        <source>Minimum X value</source>
        <translation>X の最小値</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>X の最大値</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Y の最小値</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Y の最大値</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>左のアンカーでの X の値</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>右のアンカーでの X の値</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>下のアンカーでの Y の値、または中心での半径</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>上のアンカーでの Y の値、または半径の線の端での半径</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>対数(&amp;G)</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>X 軸は対数軸 (底は 10)</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>対数(&amp;L)</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>Y 軸または半径は対数 (底は 10)</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>角度の範囲</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>角度を読み取る範囲と単位</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>0 ～ 360 度</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>−180 ～ 180 度</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>0 ～ 2π ラジアン</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>−π ～ π ラジアン</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>反時計回り(&amp;C)</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>角度は反時計回りに増えます</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>時計回り(&amp;K)</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>角度は時計回りに増えます</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>現在の系列</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>新しい点が入る系列</translation>
    </message>
    <message id="document.data.series.1">
        <source>Series 1</source>
        <translation>系列 1</translation>
    </message>
    <message id="document.data.series.2">
        <source>Series 2</source>
        <translation>系列 2</translation>
    </message>
    <message id="document.data.series.3">
        <source>Series 3</source>
        <translation>系列 3</translation>
    </message>
    <message id="document.data.series.4">
        <source>Series 4</source>
        <translation>系列 4</translation>
    </message>
    <message id="document.data.series.5">
        <source>Series 5</source>
        <translation>系列 5</translation>
    </message>
    <message id="document.data.series.6">
        <source>Series 6</source>
        <translation>系列 6</translation>
    </message>
    <message id="document.data.series.7">
        <source>Series 7</source>
        <translation>系列 7</translation>
    </message>
    <message id="document.data.series.8">
        <source>Series 8</source>
        <translation>系列 8</translation>
    </message>
    <message id="document.data.series.9">
        <source>Series 9</source>
        <translation>系列 9</translation>
    </message>
    <message id="document.data.series.10">
        <source>Series 10</source>
        <translation>系列 10</translation>
    </message>
    <message id="document.data.preview.tip">
        <source>How the points of this series are drawn</source>
        <translation>この系列の点の描き方</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>系列の描き方</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>系列をマーカー、線、またはその両方で描きます</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>マーカー</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>マーカーと線</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>線</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>X の自動入力の方法</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>新しい点の X の決め方</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>ポインターの位置</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>系列 1 と同じ</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>開始(&amp;S)</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>最初の値</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>系列の最初の点の値</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>間隔(&amp;T)</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>間隔</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>次の点までに加える値</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>ポインターの位置</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>X の値</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>ポインターの位置の値。固定中は、すべての新しい点がこの値になります</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Y の値</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>ポインターの位置の値。固定中は、すべての新しい点がこの値になります</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>固定(&amp;K)</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>新しい点に、ここに入力した値を与えます</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>固定(&amp;O)</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>新しい点に、ここに入力した値を与えます</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>軸の設定</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>グラフの軸に印を付け、値を入力します (Ctrl+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>数値化</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>データ点をクリックします (Ctrl+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>グラフの画像を開くと、軸を設定して点を読み取れます。</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>グラフを数値に</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  グラフのスキャン、スクリーンショット、写真などの画像を開くか、貼り付けるか、ドロップします。
2.  アンカーをグラフの軸までドラッグし、値を入力します。
3.  データ点をクリックし、数値を保存またはコピーします。</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>左に回転</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>ポインター: データ点をクリック、軸のアンカーをドラッグ (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>ポインター</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>手のひら: ドラッグして画像をスクロール (Alt+2、または Ctrl を押したまま)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>手のひら</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>拡大: クリック、または表示いっぱいにする範囲をドラッグ (Alt+3、または Ctrl+Alt を押したまま)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>縮小: クリック、または表示を収める範囲をドラッグ (Alt+4、または Ctrl+Alt+Shift を押したまま)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>トリミング: 「軸の設定」ページで、画像に残す範囲をドラッグ (Alt+5、または Ctrl+Super を押したまま)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>トリミング</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>画像を左に 90° 回転します (Ctrl+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>右に回転</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>画像を右に 90° 回転します (Ctrl+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>画像をウィンドウの幅に合わせます (Ctrl+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>高さに合わせる</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>画像をウィンドウの高さに合わせます (Ctrl+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>表示倍率</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>画像の表示倍率</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>画像の表示倍率</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>データ表</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>データ表を表示または隠します (Ctrl+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>系列ごとに 1 列です。列をクリックするとその系列を選択します。Ctrl+クリックで追加、Shift+クリックで範囲を選択します。</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>ドラッグで表の幅を変え、クリックで表示または隠します</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>画像(&amp;P)</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>軸(&amp;A)</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>データ(&amp;D)</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>新しいウィンドウ(&amp;N)</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>データを書き出す(&amp;E)…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>選択した系列を書き出す(&amp;L)…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>ウィンドウを閉じる(&amp;C)</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>元に戻す: %1(&amp;U)</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>やり直す: %1(&amp;R)</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>複数の操作を元に戻す(&amp;S)</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>複数の操作をやり直す(&amp;V)</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>選択した系列をコピー(&amp;C)</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>画像を貼り付け(&amp;P)</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>選択した系列の点を削除(&amp;D)</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>すべての系列を選択(&amp;A)</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>軸の設定(&amp;A)</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>数値化(&amp;D)</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>実際のサイズ(&amp;U)</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>幅に合わせる(&amp;W)</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>高さに合わせる(&amp;H)</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>軸の目盛線を表示(&amp;G)</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>結果を表示(&amp;R)</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>ポインターツール(&amp;P)</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>手のひらツール(&amp;H)</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>拡大ツール(&amp;I)</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>縮小ツール(&amp;O)</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>トリミングツール(&amp;T)</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>平行軸(&amp;P)</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>四角形軸(&amp;Q)</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>極座標軸(&amp;O)</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>標準の位置(&amp;D)</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>画像全体(&amp;W)</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>次の系列(&amp;N)</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>前の系列(&amp;P)</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>マーカーで描く(&amp;M)</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>マーカーと線で描く(&amp;A)</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>線で描く(&amp;L)</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>自動的に並べる(&amp;S)</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>最小化(&amp;M)</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>ウィンドウを画像に合わせる(&amp;P)</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>Curvegrab X について(&amp;A)</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>表を表示(&amp;T)</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>表を隠す(&amp;T)</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>グラフの画像を数値に変えます。
バージョン %1。GNU 一般公衆利用許諾書 (バージョン 3 以降) に基づく自由ソフトウェアです。</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>無題 %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>画像を開くか、貼り付けるか、ドロップして始めます。</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>ドロップするとこの画像を開きます。</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>ドロップすると画像を置き換えます。</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>ここにドロップできるのは画像と画像ファイルだけです。</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>画像を置き換えられるのは「軸の設定」ページだけです。先にそちらへ切り替えてください。</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>軸がまだ使えません。先に「軸の設定」ページで設定してください。</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>クリックすると系列 %1 に点を追加します。</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>ドラッグすると画像をスクロールします。</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>クリックで拡大、ドラッグでその範囲を表示いっぱいにします。</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>クリックで縮小、ドラッグでその範囲に表示を収めます。</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>画像に残す範囲をドラッグします。</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>範囲をドラッグします。画像は変わりません。</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>アンカーをグラフの軸までドラッグし、値を入力します。</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>データ点をクリックします。Ctrl を押したままドラッグするとスクロールします。</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>画像 %1, %2</translation>
    </message>
    <message id="document.status.graph">
        <source>X %1   Y %2</source>
        <translation>X %1   Y %2</translation>
    </message>
    <message id="document.status.graphPolar">
        <source>θ %1   r %2</source>
        <translation>θ %1   r %2</translation>
    </message>
    <message id="document.status.series">
        <source>Series %1 · point %2</source>
        <translation>系列 %1 · 点 %2</translation>
    </message>
    <message id="document.status.opening">
        <source>Opening %1…</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>どの系列の点も昇順に保ちます</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>ブックを作成できませんでした。1 枚のシートに入るのは 1048576 行までです。また、ディスクには一時ファイルのための空きが必要です。</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>Curvegrab X の一部が見つからないため、ブックを書き出せません。プログラムをもう一度インストールしてください。必要な部分の場所: %1</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>タブ区切りテキスト</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>コンマ区切りの値</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON (軸を含む)</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Excel ブック</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>書き出す表の桁数(&amp;G)</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>必要なだけ</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>画像へ移動(&amp;P)</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1: 矢印キーで移動 (Shift で 10、Alt で 0.1)。Page Down で次へ。</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Page Down でアンカーを選び、矢印キーで動かします。</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>矢印キーでポインターを動かし (Shift で 10、Alt で 0.1)、Enter で系列 %1 に点を追加します。</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>Enter で範囲を始め、矢印キーで広げ、もう一度 Enter でトリミングします。</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 × %2 ピクセル。ページ: 軸の設定。</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 × %2 ピクセル。ページ: 数値化。</translation>
    </message>
</context>
</TS>
