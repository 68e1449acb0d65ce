<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>Art der Achsen</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>Welche Art von Achsen das Diagramm hat</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>Parallele Achsen</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>Viereckige Achsen</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>Polare Achsen</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>&amp;Standard</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>Die Anker an ihre Standardplätze zurücksetzen</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>Gan&amp;zes Bild</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>Die Achsen über das ganze Bild spannen und Pixel ablesen</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>X-Achse</translation>
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
        <translation>Minimum von X</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>Maximum von X</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Minimum von Y</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Maximum von Y</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>Der X-Wert an den linken Ankern</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>Der X-Wert an den rechten Ankern</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>Der Y-Wert an den unteren Ankern oder der Radius in der Mitte</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>Der Y-Wert an den oberen Ankern oder der Radius am Ende der Radiuslinie</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>Lo&amp;garithmisch</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>Die X-Achse ist logarithmisch (Basis 10)</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>L&amp;ogarithmisch</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>Die Y-Achse oder der Radius ist logarithmisch (Basis 10)</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>Bereich des Winkels</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>Bereich und Einheit, in denen Winkel abgelesen werden</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>0 bis 360 Grad</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>−180 bis 180 Grad</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>0 bis 2π Radiant</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>−π bis π Radiant</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>Lin&amp;ksherum</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>Winkel wachsen gegen den Uhrzeigersinn</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>&amp;Rechtsherum</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>Winkel wachsen im Uhrzeigersinn</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>Datenreihe</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>Aktuelle Datenreihe</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>Die Datenreihe, in die neue Punkte kommen</translation>
    </message>
    <message id="document.data.series.1">
        <source>Series 1</source>
        <translation>Datenreihe 1</translation>
    </message>
    <message id="document.data.series.2">
        <source>Series 2</source>
        <translation>Datenreihe 2</translation>
    </message>
    <message id="document.data.series.3">
        <source>Series 3</source>
        <translation>Datenreihe 3</translation>
    </message>
    <message id="document.data.series.4">
        <source>Series 4</source>
        <translation>Datenreihe 4</translation>
    </message>
    <message id="document.data.series.5">
        <source>Series 5</source>
        <translation>Datenreihe 5</translation>
    </message>
    <message id="document.data.series.6">
        <source>Series 6</source>
        <translation>Datenreihe 6</translation>
    </message>
    <message id="document.data.series.7">
        <source>Series 7</source>
        <translation>Datenreihe 7</translation>
    </message>
    <message id="document.data.series.8">
        <source>Series 8</source>
        <translation>Datenreihe 8</translation>
    </message>
    <message id="document.data.series.9">
        <source>Series 9</source>
        <translation>Datenreihe 9</translation>
    </message>
    <message id="document.data.series.10">
        <source>Series 10</source>
        <translation>Datenreihe 10</translation>
    </message>
    <message id="document.data.preview.tip">
        <source>How the points of this series are drawn</source>
        <translation>So werden die Punkte dieser Datenreihe gezeichnet</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>Darstellung der Datenreihe</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>Die Datenreihe als Marker, Linien oder beides zeichnen</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>Marker und Linien</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>Automatik für X</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>Woher das X eines neuen Punktes kommt</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>Vom Zeiger</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>Wie in Datenreihe 1</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>Sta&amp;rt</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>Erster Wert</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>Der Wert des ersten Punktes einer Datenreihe</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>Schr&amp;itt</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>Was von Punkt zu Punkt hinzukommt</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>Am Zeiger</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>X-Wert</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>Der Wert unter dem Zeiger; festgehalten der Wert, den jeder neue Punkt bekommt</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Y-Wert</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>Der Wert unter dem Zeiger; festgehalten der Wert, den jeder neue Punkt bekommt</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>F&amp;est</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>Neuen Punkten den hier eingegebenen Wert geben</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>Fe&amp;st</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>Neuen Punkten den hier eingegebenen Wert geben</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>Achsen</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>Die Achsen des Diagramms markieren und ihre Werte eingeben (Strg+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>Digitalisieren</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>Die Datenpunkte anklicken (Strg+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>Öffnen Sie das Bild eines Diagramms, um Achsen festzulegen und Punkte abzulesen.</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>Aus einem Diagramm werden Zahlen</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  Öffnen Sie ein Bild, fügen Sie es ein oder ziehen Sie es herein: Scan, Bildschirmfoto oder Foto.
2.  Ziehen Sie die Anker auf die Achsen des Diagramms und geben Sie deren Werte ein.
3.  Klicken Sie die Datenpunkte an und speichern oder kopieren Sie die Zahlen.</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>Öff&amp;nen…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>Zeiger: Datenpunkte anklicken, Anker der Achsen ziehen (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>Hand: ziehen, um das Bild zu verschieben (Alt+2 oder Strg halten)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>Vergrößern: klicken oder ein Rechteck ziehen, das die Ansicht füllen soll (Alt+3 oder Strg+Alt halten)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>Verkleinern: klicken oder ein Rechteck ziehen, auf das die Ansicht schrumpfen soll (Alt+4 oder Strg+Alt+Umschalt halten)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>Zuschneiden: auf der Seite „Achsen“ ein Rechteck ziehen, auf das das Bild gekürzt wird (Alt+5 oder Strg+Super halten)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>Das Bild um ein Viertel nach links drehen (Strg+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>Das Bild um ein Viertel nach rechts drehen (Strg+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>An Breite anpassen</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>Das Bild so breit wie das Fenster machen (Strg+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>An Höhe anpassen</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>Das Bild so hoch wie das Fenster machen (Strg+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>Vergrößerung</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>Vergrößerung des Bildes</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>Vergrößerung des Bildes</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>Datentabelle</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>Die Datentabelle ein- oder ausblenden (Strg+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>Eine Spalte je Datenreihe. Ein Klick auf eine Spalte wählt ihre Datenreihe aus; Strg-Klicken nimmt eine hinzu, Umschalt-Klicken einen Bereich.</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>Ziehen ändert die Breite der Tabelle, Klicken blendet sie ein oder aus</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>Bi&amp;ld</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>A&amp;chsen</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>Da&amp;ten</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>&amp;Daten exportieren…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>&amp;Auswahl exportieren…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>F&amp;enster schließen</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>Mehrere Schritte rückgängig &amp;machen</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>Mehrere Schritte wiederh&amp;olen</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>Ausgewählte Datenreihen &amp;kopieren</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>&amp;Bild einfügen</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>&amp;Punkte der ausgewählten Datenreihen löschen</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>&amp;Alle Datenreihen auswählen</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>Ach&amp;sen festlegen</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>&amp;Digitalisieren</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>Verklei&amp;nern</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>&amp;An Breite anpassen</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>An &amp;Höhe anpassen</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>Achsen&amp;gitter anzeigen</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>E&amp;rgebnis anzeigen</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>Nach links &amp;drehen</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>&amp;Nach rechts drehen</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>&amp;Zeiger</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>&amp;Hand</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>&amp;Lupe: Vergrößern</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>Lupe: &amp;Verkleinern</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>Zus&amp;chneiden</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>Parallele &amp;Achsen</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>&amp;Viereckige Achsen</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>&amp;Polare Achsen</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>&amp;Standardpositionen</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>&amp;Ganzes Bild</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>&amp;Nächste Datenreihe</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>&amp;Vorige Datenreihe</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>Marker &amp;zeichnen</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>&amp;Marker und Linien zeichnen</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>&amp;Linien zeichnen</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>&amp;Automatisch sortieren</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>&amp;Fenster an Bild anpassen</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>Ü&amp;ber Curvegrab X</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>&amp;Tabelle einblenden</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>&amp;Tabelle ausblenden</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Macht aus dem Bild eines Diagramms Zahlen.
Version %1. Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>Öffnen Sie ein Bild, fügen Sie es ein oder ziehen Sie es herein.</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>Loslassen, um dieses Bild zu öffnen.</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>Loslassen, um das Bild zu ersetzen.</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>Hier lassen sich nur Bilder und Bilddateien ablegen.</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>Das Bild lässt sich nur auf der Seite „Achsen“ ersetzen: Wechseln Sie zuerst dorthin.</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>Die Achsen sind noch nicht verwendbar: Legen Sie sie zuerst auf der Seite „Achsen“ fest.</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>Klicken, um Datenreihe %1 einen Punkt hinzuzufügen.</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>Ziehen, um das Bild zu verschieben.</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>Klicken, um zu vergrößern, oder ein Rechteck ziehen, das die Ansicht füllt.</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>Klicken, um zu verkleinern, oder ein Rechteck ziehen, auf das die Ansicht schrumpft.</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>Ein Rechteck ziehen, auf das das Bild zugeschnitten wird.</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>Ein Rechteck ziehen; das Bild bleibt, wie es ist.</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>Ziehen Sie die Anker auf die Achsen des Diagramms und geben Sie dann deren Werte ein.</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>Klicken Sie die Datenpunkte an. Mit gehaltener Strg-Taste verschieben Sie das Bild.</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>Bild %1, %2</translation>
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
        <translation>Datenreihe %1 · Punkt %2</translation>
    </message>
    <message id="document.status.opening">
        <source>Opening %1…</source>
        <translation>%1 wird geöffnet…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>Die Punkte jeder Datenreihe aufsteigend geordnet halten</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>Die Arbeitsmappe ließ sich nicht anlegen. Ein Blatt fasst 1048576 Zeilen, und der Datenträger braucht etwas Platz für Zwischendateien.</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>Arbeitsmappen lassen sich nicht schreiben, weil ein Teil von Curvegrab X fehlt. Bitte installieren Sie das Programm neu. Der Teil gehört in %1.</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Text mit Tabulatoren</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Werte mit Kommas</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON mit Achsen</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Excel-Arbeitsmappe</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>Z&amp;iffern exportierter Tabellen</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>So viele wie nötig</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>Zum &amp;Bild</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1: mit Pfeiltasten bewegen (Umschalt 10, Alt 0.1); Bild abwärts für das Nächste.</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Bild abwärts wählt einen Anker, Pfeiltasten bewegen ihn.</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>Pfeiltasten: Zeiger bewegen (Umschalt 10, Alt 0.1); Eingabetaste: Punkt zu Datenreihe %1.</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>Eingabetaste beginnt ein Rechteck, Pfeiltasten ziehen es auf, Eingabetaste schneidet zu.</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 mal %2 Pixel. Seite: Achsen.</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 mal %2 Pixel. Seite: Digitalisieren.</translation>
    </message>
</context>
</TS>
