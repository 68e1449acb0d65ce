<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>Axes</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>Kind of axes</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>Which kind of axes the chart has</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>Parallel axes</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>Quadrangle axes</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>Polar axes</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>Defa&amp;ult</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>Put the anchors back to their default places</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>Whole pictu&amp;re</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>Span the axes over the whole picture and read out pixels</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>X axis</translation>
    </message>
    <message id="document.axes.minx">
        <source>M&amp;in</source>
        <translation>M&amp;in</translation>
    </message>
    <message id="document.axes.maxx">
        <source>Ma&amp;x</source>
        <translation>Ma&amp;x</translation>
    </message>
    <message id="document.axes.miny">
        <source>Mi&amp;n</source>
        <translation>Mi&amp;n</translation>
    </message>
    <message id="document.axes.maxy">
        <source>&amp;Max</source>
        <translation>&amp;Max</translation>
    </message>
    <message id="document.axes.minx.name">
        <source>Minimum X value</source>
        <translation>Minimum X value</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>Maximum X value</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Minimum Y value</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Maximum Y value</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>The X value at the left anchors</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>The X value at the right anchors</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>The Y value at the bottom anchors, or the radius at the centre</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>The Y value at the top anchors, or the radius at the end of the radius line</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>Lo&amp;garithmic</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>The X axis is logarithmic (base 10)</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarithmic</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>The Y axis, or the radius, is logarithmic (base 10)</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>Range of the angle</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>The range and the unit in which angles are read out</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>0 to 360 degrees</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>−180 to 180 degrees</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>0 to 2π radians</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>−π to π radians</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>&amp;Counter-clockwise</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>Angles grow counter-clockwise</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>Cloc&amp;kwise</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>Angles grow clockwise</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>Series</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>Current series</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>The series that new points go to</translation>
    </message>
    <message id="document.data.series.1">
        <source>Series 1</source>
        <translation>Series 1</translation>
    </message>
    <message id="document.data.series.2">
        <source>Series 2</source>
        <translation>Series 2</translation>
    </message>
    <message id="document.data.series.3">
        <source>Series 3</source>
        <translation>Series 3</translation>
    </message>
    <message id="document.data.series.4">
        <source>Series 4</source>
        <translation>Series 4</translation>
    </message>
    <message id="document.data.series.5">
        <source>Series 5</source>
        <translation>Series 5</translation>
    </message>
    <message id="document.data.series.6">
        <source>Series 6</source>
        <translation>Series 6</translation>
    </message>
    <message id="document.data.series.7">
        <source>Series 7</source>
        <translation>Series 7</translation>
    </message>
    <message id="document.data.series.8">
        <source>Series 8</source>
        <translation>Series 8</translation>
    </message>
    <message id="document.data.series.9">
        <source>Series 9</source>
        <translation>Series 9</translation>
    </message>
    <message id="document.data.series.10">
        <source>Series 10</source>
        <translation>Series 10</translation>
    </message>
    <message id="document.data.preview.tip">
        <source>How the points of this series are drawn</source>
        <translation>How the points of this series are drawn</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>How the series is drawn</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>Draw the series as markers, lines or both</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>Markers</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>Markers and lines</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>Lines</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>Automatic X mode</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>Where the X of a new point comes from</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>From the pointer</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>As in series 1</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>First value</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>The value of the first point of a series</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>S&amp;tep</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>Step</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>What is added from one point to the next</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>At the pointer</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>X value</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>The value under the pointer; while locked, the value that every new point takes</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Y value</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>The value under the pointer; while locked, the value that every new point takes</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>Loc&amp;k</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>Give new points the value typed here</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>L&amp;ock</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>Give new points the value typed here</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>Axis setting</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>Mark the axes of the chart and type their values (Ctrl+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>Digitizing</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>Click the data points (Ctrl+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>Open a picture of a chart to set its axes and read its points.</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>Turn a chart into numbers</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>Turn left</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>Pointer: click data points, drag the anchors of the axes (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>Pointer</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>Zoom in</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>Zoom out</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>Trim</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>Turn the picture a quarter to the left (Ctrl+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>Turn right</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>Turn the picture a quarter to the right (Ctrl+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>Fit width</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>Make the picture as wide as the window (Ctrl+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>Fit height</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>Make the picture as high as the window (Ctrl+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>Magnification</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>Magnification of the picture</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>Magnification of the picture</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>Data table</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>Show or hide the data table (Ctrl+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>Drag to change the width of the table, click to show or hide it</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>&amp;Picture</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>&amp;Axes</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>&amp;Data</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>&amp;Window</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>&amp;New Window</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>&amp;Export Data…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>Export Se&amp;lection…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>&amp;Close Window</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>&amp;Redo %1</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>Undo &amp;Several Steps</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>Redo Se&amp;veral Steps</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>&amp;Copy Selected Series</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>&amp;Paste Picture</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>&amp;Delete Points of Selected Series</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>Select &amp;All Series</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>&amp;Axis Setting</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>&amp;Digitizing</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>Act&amp;ual Size</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;In</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;Out</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>Fit &amp;Width</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>Fit &amp;Height</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>Show Axis &amp;Grid</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>Show &amp;Result</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>Turn &amp;Left</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>Turn &amp;Right</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>&amp;Pointer Tool</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>&amp;Hand Tool</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>Zoom &amp;In Tool</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>Zoom &amp;Out Tool</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>&amp;Trim Tool</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>&amp;Parallel Axes</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>&amp;Quadrangle Axes</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>P&amp;olar Axes</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>&amp;Default Positions</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>&amp;Whole Picture</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>&amp;Next Series</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>&amp;Previous Series</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>Draw &amp;Markers</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>Draw Markers &amp;and Lines</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>Draw &amp;Lines</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>&amp;Sort Automatically</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>&amp;Minimize</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>Fit Window to &amp;Picture</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>&amp;About Curvegrab X</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>Show &amp;Table</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>Hide &amp;Table</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>Untitled %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>Open, paste or drop a picture to begin.</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>Drop to open this picture.</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>Drop to replace the picture.</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>Only pictures and files of pictures can be dropped here.</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>The picture can be replaced on the axis page only: switch there first.</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>The axes cannot be used yet: set them on the axis page first.</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>Click to add a point to series %1.</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>Drag to scroll the picture.</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>Click to zoom in, or drag a rectangle to fill the view with it.</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>Click to zoom out, or drag a rectangle for the view to shrink into.</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>Drag a rectangle to trim the picture to.</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>Drag a rectangle; the picture stays as it is.</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>Drag the anchors onto the axes of the chart, then type their values.</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>Click the data points. Hold Ctrl to scroll by hand.</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>Picture %1, %2</translation>
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
        <translation>Series %1 · point %2</translation>
    </message>
    <message id="document.status.opening">
        <source>Opening %1…</source>
        <translation>Opening %1…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>Keep the points of every series in ascending order</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Tab-separated text</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Comma-separated values</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON with axes</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Excel workbook</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>Di&amp;gits of Exported Tables</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>As Many as Needed</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>Go to &amp;Picture</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Page Down chooses an anchor, arrow keys move it.</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 by %2 pixels. Page: Axis Setting.</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 by %2 pixels. Page: Digitizing.</translation>
    </message>
</context>
</TS>
