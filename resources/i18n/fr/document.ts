<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>Axes</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>Type d’axes</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>Quel type d’axes a le graphique</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>Axes parallèles</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>Axes en quadrilatère</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>Axes polaires</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>&amp;Par défaut</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>Remettre les ancres à leur place par défaut</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>Toute &amp;l’image</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>Étendre les axes à toute l’image et lire des pixels</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>Axe X</translation>
    </message>
    <message id="document.axes.minx">
        <source>M&amp;in</source>
        <translation>M&amp;in</translation>
    </message>
    <message id="document.axes.maxx">
        <source>Ma&amp;x</source>
        <translation>&amp;Max</translation>
    </message>
    <message id="document.axes.miny">
        <source>Mi&amp;n</source>
        <translation>Mi&amp;n</translation>
    </message>
    <message id="document.axes.maxy">
        <source>&amp;Max</source>
        <translation>Ma&amp;x</translation>
    </message>
    <message id="document.axes.minx.name">
        <source>Minimum X value</source>
        <translation>Valeur minimale de X</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>Valeur maximale de X</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Valeur minimale de Y</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Valeur maximale de Y</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>La valeur de X aux ancres de gauche</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>La valeur de X aux ancres de droite</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>La valeur de Y aux ancres du bas, ou le rayon au centre</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>La valeur de Y aux ancres du haut, ou le rayon à l’extrémité de sa ligne</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>Logarithmi&amp;que</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>L’axe X est logarithmique (base 10)</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>Logarithmiq&amp;ue</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>L’axe Y, ou le rayon, est logarithmique (base 10)</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>Plage de l’angle</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>La plage et l’unité dans lesquelles les angles sont lus</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>0 à 360 degrés</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>−180 à 180 degrés</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>0 à 2π radians</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>−π à π radians</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>Sens an&amp;tihoraire</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>Les angles croissent dans le sens inverse des aiguilles d’une montre</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>Sens &amp;horaire</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>Les angles croissent dans le sens des aiguilles d’une montre</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>Série</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>Série actuelle</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>La série qui reçoit les nouveaux points</translation>
    </message>
    <message id="document.data.series.1">
        <source>Series 1</source>
        <translation>Série 1</translation>
    </message>
    <message id="document.data.series.2">
        <source>Series 2</source>
        <translation>Série 2</translation>
    </message>
    <message id="document.data.series.3">
        <source>Series 3</source>
        <translation>Série 3</translation>
    </message>
    <message id="document.data.series.4">
        <source>Series 4</source>
        <translation>Série 4</translation>
    </message>
    <message id="document.data.series.5">
        <source>Series 5</source>
        <translation>Série 5</translation>
    </message>
    <message id="document.data.series.6">
        <source>Series 6</source>
        <translation>Série 6</translation>
    </message>
    <message id="document.data.series.7">
        <source>Series 7</source>
        <translation>Série 7</translation>
    </message>
    <message id="document.data.series.8">
        <source>Series 8</source>
        <translation>Série 8</translation>
    </message>
    <message id="document.data.series.9">
        <source>Series 9</source>
        <translation>Série 9</translation>
    </message>
    <message id="document.data.series.10">
        <source>Series 10</source>
        <translation>Série 10</translation>
    </message>
    <message id="document.data.preview.tip">
        <source>How the points of this series are drawn</source>
        <translation>Comment les points de cette série sont tracés</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>Tracé de la série</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>Tracer la série par des marqueurs, des lignes ou les deux</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>Marqueurs et lignes</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>Mode de X automatique</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>D’où vient le X d’un nouveau point</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>Du pointeur</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>Comme dans la série 1</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>Débu&amp;t</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>Première valeur</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>La valeur du premier point d’une série</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>&amp;Pas</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>Ce qui s’ajoute d’un point au suivant</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>Sous le pointeur</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>Valeur de X</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>La valeur sous le pointeur ; bloquée, la valeur que prend chaque nouveau point</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Valeur de Y</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>La valeur sous le pointeur ; bloquée, la valeur que prend chaque nouveau point</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>&amp;Bloquer</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>Donner aux nouveaux points la valeur saisie ici</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>Bloq&amp;uer</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>Donner aux nouveaux points la valeur saisie ici</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>Axes</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>Marquer les axes du graphique et saisir leurs valeurs (Ctrl+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>Numérisation</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>Cliquer sur les points de données (Ctrl+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>Ouvrez l’image d’un graphique pour régler ses axes et lire ses points.</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>D’un graphique aux nombres</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  Ouvrez, collez ou déposez une image : un scan, une capture d’écran ou une photo d’un graphique.
2.  Faites glisser les ancres sur ses axes et saisissez leurs valeurs.
3.  Cliquez sur les points de données, puis enregistrez ou copiez les nombres.</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>O&amp;uvrir…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>Pointeur : cliquer sur les points de données, faire glisser les ancres des axes (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>Main : faire glisser pour faire défiler l’image (Alt+2, ou maintenir Ctrl)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>Main</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>Zoom avant : cliquer, ou tracer un rectangle qui remplira la vue (Alt+3, ou maintenir Ctrl+Alt)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>Zoom arrière : cliquer, ou tracer un rectangle auquel la vue se réduira (Alt+4, ou maintenir Ctrl+Alt+Maj)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>Rogner : tracer un rectangle auquel réduire l’image, sur la page « Axes » (Alt+5, ou maintenir Ctrl+Super)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>Tourner l’image d’un quart de tour à gauche (Ctrl+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>Tourner à droite</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>Tourner l’image d’un quart de tour à droite (Ctrl+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>Ajuster à la largeur</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>Rendre l’image aussi large que la fenêtre (Ctrl+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>Ajuster à la hauteur</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>Rendre l’image aussi haute que la fenêtre (Ctrl+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>Grossissement</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>Grossissement de l’image</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>Grossissement de l’image</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>Tableau des données</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>Afficher ou masquer le tableau des données (Ctrl+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>Une colonne par série. Cliquez sur une colonne pour sélectionner sa série ; Ctrl+clic en ajoute une, Maj+clic une plage.</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>Faites glisser pour changer la largeur du tableau, cliquez pour l’afficher ou le masquer</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>Ima&amp;ge</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>Axe&amp;s</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>D&amp;onnées</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>Fenêt&amp;re</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>&amp;Nouvelle fenêtre</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>Exporter les &amp;données…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>Exporter &amp;la sélection…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>Annuler pl&amp;usieurs étapes</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>Rétablir plusieurs é&amp;tapes</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>Copier &amp;les séries sélectionnées</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>&amp;Coller l’image</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>&amp;Effacer les points des séries sélectionnées</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>&amp;Sélectionner toutes les séries</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>&amp;Réglage des axes</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>&amp;Numérisation</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>Z&amp;oom arrière</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>Ajuster à &amp;la largeur</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>Ajuster à la &amp;hauteur</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>Afficher la grille &amp;des axes</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>Affi&amp;cher le résultat</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>&amp;Tourner à gauche</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>Tourner à &amp;droite</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>Outil &amp;Pointeur</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>Outil &amp;Main</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>Outil &amp;Zoom avant</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>Outil Zoom &amp;arrière</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>&amp;Outil Rogner</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>Axes &amp;parallèles</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>Axes en &amp;quadrilatère</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>&amp;Axes polaires</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>Positio&amp;ns par défaut</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>Toute &amp;l’image</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>&amp;Série suivante</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>Série &amp;précédente</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>&amp;Tracer les marqueurs</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>Tracer marqueurs &amp;et lignes</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>Tracer &amp;les lignes</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>Trier aut&amp;omatiquement</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>&amp;Ajuster la fenêtre à l’image</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>À &amp;propos de Curvegrab X</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>&amp;Afficher le tableau</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>&amp;Masquer le tableau</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Transforme l’image d’un graphique en nombres.
Version %1. Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure.</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>Sans titre %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>Ouvrez, collez ou déposez une image pour commencer.</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>Déposez pour ouvrir cette image.</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>Déposez pour remplacer l’image.</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>On ne peut déposer ici que des images et des fichiers d’images.</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>L’image ne peut être remplacée que sur la page « Axes » : passez-y d’abord.</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>Les axes ne sont pas encore utilisables : réglez-les d’abord sur la page « Axes ».</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>Cliquez pour ajouter un point à la série %1.</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>Faites glisser pour faire défiler l’image.</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>Cliquez pour agrandir, ou tracez un rectangle qui remplira la vue.</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>Cliquez pour réduire, ou tracez un rectangle auquel la vue se réduira.</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>Tracez le rectangle auquel rogner l’image.</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>Tracez un rectangle ; l’image reste telle quelle.</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>Faites glisser les ancres sur les axes du graphique, puis saisissez leurs valeurs.</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>Cliquez sur les points de données. Maintenez Ctrl pour faire défiler l’image.</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>Image %1, %2</translation>
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
        <translation>Série %1 · point %2</translation>
    </message>
    <message id="document.status.opening">
        <source>Opening %1…</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>Garder les points de chaque série dans l’ordre croissant</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>Le classeur n’a pas pu être créé. Une feuille contient au plus 1048576 lignes, et le disque a besoin d’un peu de place pour des fichiers temporaires.</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>Les classeurs ne peuvent pas être écrits, car une partie de Curvegrab X manque. Veuillez réinstaller le programme. Cette partie doit se trouver dans %1.</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Texte séparé par des tabulations</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Valeurs séparées par des virgules</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON avec les axes</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Classeur Excel</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>C&amp;hiffres des tableaux exportés</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>Autant que nécessaire</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>Aller à l’ima&amp;ge</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1 : flèches pour déplacer (Maj 10, Alt 0.1) ; Page bas pour le suivant.</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Page bas choisit une ancre, les flèches la déplacent.</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>Les flèches déplacent le pointeur (Maj 10, Alt 0.1), Entrée ajoute un point à la série %1.</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>Entrée commence un rectangle, les flèches le tracent, Entrée rogne l’image.</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 sur %2 pixels. Page : Axes.</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 sur %2 pixels. Page : Numérisation.</translation>
    </message>
</context>
</TS>
