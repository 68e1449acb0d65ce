<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>坐标轴</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>坐标轴类型</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>图表坐标轴的类型</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>平行坐标轴</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>四边形坐标轴</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>极坐标轴</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>默认(&amp;U)</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>将锚点放回默认位置</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>整张图片(&amp;R)</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>将坐标轴铺满整张图片并读取像素值</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>X 轴</translation>
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
        <translation>X 最小值</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>X 最大值</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Y 最小值</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Y 最大值</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>左侧锚点处的 X 值</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>右侧锚点处的 X 值</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>下方锚点处的 Y 值，或圆心处的半径</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>上方锚点处的 Y 值，或半径线端点处的半径</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>对数(&amp;G)</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>X 轴为对数坐标轴（以 10 为底）</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>对数(&amp;L)</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>Y 轴或半径为对数（以 10 为底）</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>角度范围</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>读取角度的范围和单位</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>0 到 360 度</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>−180 到 180 度</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>0 到 2π 弧度</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>−π 到 π 弧度</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>逆时针(&amp;C)</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>角度按逆时针方向增大</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>顺时针(&amp;K)</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>角度按顺时针方向增大</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>当前系列</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>新点所进入的系列</translation>
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
        <translation>此系列的点的绘制方式</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>系列的绘制方式</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>以标记、线或两者绘制系列</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>标记和线</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>线</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>自动 X 方式</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>新点的 X 从何而来</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>取自指针</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>与系列 1 相同</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>起始(&amp;S)</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>第一个值</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>系列中第一个点的值</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>步长(&amp;T)</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>步长</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>从一个点到下一个点所加的值</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>指针处</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>X 值</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>指针处的值；锁定时为每个新点所取的值</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Y 值</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>指针处的值；锁定时为每个新点所取的值</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>锁定(&amp;K)</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>新点取此处输入的值</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>锁定(&amp;O)</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>新点取此处输入的值</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>坐标轴设置</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>标出图表的坐标轴并输入其值 (Ctrl+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>数字化</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>单击数据点 (Ctrl+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>打开图表的图片，即可设置坐标轴并读取其中的点。</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>将图表变成数字</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  打开、粘贴或拖入图表的图片：扫描件、屏幕截图或照片。
2.  将锚点拖到图表的坐标轴上，并输入其值。
3.  单击数据点，然后保存或复制数字。</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>向左旋转</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>指针：单击数据点，拖动坐标轴的锚点 (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>指针</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>抓手：拖动以滚动图片 (Alt+2，或按住 Ctrl)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>抓手</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>放大：单击，或拖出要填满视图的矩形 (Alt+3，或按住 Ctrl+Alt)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>缩小：单击，或拖出视图要缩入的矩形 (Alt+4，或按住 Ctrl+Alt+Shift)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>裁剪：在“坐标轴设置”页上拖出图片要保留的矩形 (Alt+5，或按住 Ctrl+Super)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>裁剪</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>将图片向左旋转 90° (Ctrl+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>向右旋转</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>将图片向右旋转 90° (Ctrl+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>适合宽度</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>使图片与窗口同宽 (Ctrl+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>适合高度</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>使图片与窗口同高 (Ctrl+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>显示比例</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>图片的显示比例</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>图片的显示比例</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>数据表</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>显示或隐藏数据表 (Ctrl+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>每个系列一列。单击列可选中其系列；按住 Ctrl 单击可加选，按住 Shift 单击可选中一段范围。</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>拖动可改变表的宽度，单击可显示或隐藏表</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>图片(&amp;P)</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>坐标轴(&amp;A)</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>数据(&amp;D)</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>新建窗口(&amp;N)</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>导出数据(&amp;E)…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>导出选中的系列(&amp;L)…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>撤销：%1(&amp;U)</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>重做：%1(&amp;R)</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>撤销多步(&amp;S)</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>重做多步(&amp;V)</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>复制选中的系列(&amp;C)</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>粘贴图片(&amp;P)</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>删除选中系列的点(&amp;D)</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>选中所有系列(&amp;A)</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>坐标轴设置(&amp;A)</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>数字化(&amp;D)</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>实际大小(&amp;U)</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>适合宽度(&amp;W)</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>适合高度(&amp;H)</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>显示坐标网格(&amp;G)</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>显示结果(&amp;R)</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>指针工具(&amp;P)</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>抓手工具(&amp;H)</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>放大工具(&amp;I)</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>缩小工具(&amp;O)</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>裁剪工具(&amp;T)</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>平行坐标轴(&amp;P)</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>四边形坐标轴(&amp;Q)</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>极坐标轴(&amp;O)</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>默认位置(&amp;D)</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>整张图片(&amp;W)</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>下一个系列(&amp;N)</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>上一个系列(&amp;P)</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>绘制标记(&amp;M)</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>绘制标记和线(&amp;A)</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>绘制线(&amp;L)</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>自动排序(&amp;S)</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>最小化(&amp;M)</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>使窗口适合图片(&amp;P)</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>关于 Curvegrab X(&amp;A)</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>显示数据表(&amp;T)</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>隐藏数据表(&amp;T)</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>将图表的图片变成数字。
版本 %1。自由软件，遵循 GNU 通用公共许可证第 3 版或更高版本。</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>未命名 %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>打开、粘贴或拖入图片即可开始。</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>放开以打开此图片。</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>放开以替换图片。</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>这里只能放入图片和图片文件。</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>只有在“坐标轴设置”页上才能替换图片：请先切换到该页。</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>坐标轴尚不可用：请先在“坐标轴设置”页上设置。</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>单击以向系列 %1 添加点。</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>拖动以滚动图片。</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>单击以放大，或拖出要填满视图的矩形。</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>单击以缩小，或拖出视图要缩入的矩形。</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>拖出图片要保留的矩形。</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>拖出矩形；图片保持不变。</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>将锚点拖到图表的坐标轴上，然后输入其值。</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>单击数据点。按住 Ctrl 可拖动图片。</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>图片 %1, %2</translation>
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
        <translation>正在打开 %1…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>使每个系列的点保持升序</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>无法生成工作簿。一张工作表最多容纳 1048576 行，并且磁盘需要留出一些空间存放临时文件。</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>无法写入工作簿，因为缺少 Curvegrab X 的一部分。请重新安装本程序。该部分应位于 %1。</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>制表符分隔的文本</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>逗号分隔的值</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON（含坐标轴）</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Excel 工作簿</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>导出表格的位数(&amp;G)</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>按需要</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>转到图片(&amp;P)</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1：按方向键移动（Shift 10，Alt 0.1）；Page Down 选择下一个。</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Page Down 选择锚点，方向键移动锚点。</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>方向键移动指针（Shift 10，Alt 0.1），回车向系列 %1 添加点。</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>按回车开始画矩形，用方向键拉开，再按回车裁剪图片。</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 × %2 像素。页面：坐标轴设置。</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 × %2 像素。页面：数字化。</translation>
    </message>
</context>
</TS>
