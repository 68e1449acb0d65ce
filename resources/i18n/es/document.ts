<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="document.axes.kind">
        <source>Axes</source>
        <translation>Ejes</translation>
    </message>
    <message id="document.axes.type.name">
        <source>Kind of axes</source>
        <translation>Tipo de ejes</translation>
    </message>
    <message id="document.axes.type.tip">
        <source>Which kind of axes the chart has</source>
        <translation>Qué tipo de ejes tiene el gráfico</translation>
    </message>
    <message id="document.axes.type.parallel">
        <source>Parallel axes</source>
        <translation>Ejes paralelos</translation>
    </message>
    <message id="document.axes.type.quadrangle">
        <source>Quadrangle axes</source>
        <translation>Ejes en cuadrilátero</translation>
    </message>
    <message id="document.axes.type.polar">
        <source>Polar axes</source>
        <translation>Ejes polares</translation>
    </message>
    <message id="document.axes.reset">
        <source>Defa&amp;ult</source>
        <translation>&amp;Predeterminado</translation>
    </message>
    <message id="document.axes.reset.tip">
        <source>Put the anchors back to their default places</source>
        <translation>Devolver las anclas a sus lugares predeterminados</translation>
    </message>
    <message id="document.axes.whole">
        <source>Whole pictu&amp;re</source>
        <translation>Toda la ima&amp;gen</translation>
    </message>
    <message id="document.axes.whole.tip">
        <source>Span the axes over the whole picture and read out pixels</source>
        <translation>Extender los ejes a toda la imagen y leer píxeles</translation>
    </message>
    <message id="document.axes.x">
        <source>X axis</source>
        <translation>Eje X</translation>
    </message>
    <message id="document.axes.minx">
        <source>M&amp;in</source>
        <translation>Mí&amp;nimo</translation>
    </message>
    <message id="document.axes.maxx">
        <source>Ma&amp;x</source>
        <translation>Má&amp;ximo</translation>
    </message>
    <message id="document.axes.miny">
        <source>Mi&amp;n</source>
        <translation>Mínim&amp;o</translation>
    </message>
    <message id="document.axes.maxy">
        <source>&amp;Max</source>
        <translation>&amp;Máximo</translation>
    </message>
    <message id="document.axes.minx.name">
        <source>Minimum X value</source>
        <translation>Valor mínimo de X</translation>
    </message>
    <message id="document.axes.maxx.name">
        <source>Maximum X value</source>
        <translation>Valor máximo de X</translation>
    </message>
    <message id="document.axes.miny.name">
        <source>Minimum Y value</source>
        <translation>Valor mínimo de Y</translation>
    </message>
    <message id="document.axes.maxy.name">
        <source>Maximum Y value</source>
        <translation>Valor máximo de Y</translation>
    </message>
    <message id="document.axes.minx.tip">
        <source>The X value at the left anchors</source>
        <translation>El valor de X en las anclas de la izquierda</translation>
    </message>
    <message id="document.axes.maxx.tip">
        <source>The X value at the right anchors</source>
        <translation>El valor de X en las anclas de la derecha</translation>
    </message>
    <message id="document.axes.miny.tip">
        <source>The Y value at the bottom anchors, or the radius at the centre</source>
        <translation>El valor de Y en las anclas inferiores, o el radio en el centro</translation>
    </message>
    <message id="document.axes.maxy.tip">
        <source>The Y value at the top anchors, or the radius at the end of the radius line</source>
        <translation>El valor de Y en las anclas superiores, o el radio en el extremo de su línea</translation>
    </message>
    <message id="document.axes.logx">
        <source>Lo&amp;garithmic</source>
        <translation>Logarítmi&amp;co</translation>
    </message>
    <message id="document.axes.logx.tip">
        <source>The X axis is logarithmic (base 10)</source>
        <translation>El eje X es logarítmico (base 10)</translation>
    </message>
    <message id="document.axes.logy">
        <source>&amp;Logarithmic</source>
        <translation>&amp;Logarítmico</translation>
    </message>
    <message id="document.axes.logy.tip">
        <source>The Y axis, or the radius, is logarithmic (base 10)</source>
        <translation>El eje Y, o el radio, es logarítmico (base 10)</translation>
    </message>
    <message id="document.axes.theta">
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message id="document.axes.range.name">
        <source>Range of the angle</source>
        <translation>Intervalo del ángulo</translation>
    </message>
    <message id="document.axes.range.tip">
        <source>The range and the unit in which angles are read out</source>
        <translation>El intervalo y la unidad en que se leen los ángulos</translation>
    </message>
    <message id="document.axes.range.deg360">
        <source>0 to 360 degrees</source>
        <translation>De 0 a 360 grados</translation>
    </message>
    <message id="document.axes.range.deg180">
        <source>−180 to 180 degrees</source>
        <translation>De −180 a 180 grados</translation>
    </message>
    <message id="document.axes.range.rad2pi">
        <source>0 to 2π radians</source>
        <translation>De 0 a 2π radianes</translation>
    </message>
    <message id="document.axes.range.radpi">
        <source>−π to π radians</source>
        <translation>De −π a π radianes</translation>
    </message>
    <message id="document.axes.ccw">
        <source>&amp;Counter-clockwise</source>
        <translation>Antiho&amp;rario</translation>
    </message>
    <message id="document.axes.ccw.tip">
        <source>Angles grow counter-clockwise</source>
        <translation>Los ángulos crecen en sentido antihorario</translation>
    </message>
    <message id="document.axes.cw">
        <source>Cloc&amp;kwise</source>
        <translation>&amp;Horario</translation>
    </message>
    <message id="document.axes.cw.tip">
        <source>Angles grow clockwise</source>
        <translation>Los ángulos crecen en sentido horario</translation>
    </message>
    <message id="document.data.series">
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message id="document.data.series.name">
        <source>Current series</source>
        <translation>Serie actual</translation>
    </message>
    <message id="document.data.series.tip">
        <source>The series that new points go to</source>
        <translation>La serie que recibe los puntos nuevos</translation>
    </message>
    <message id="document.data.series.1">
        <source>Series 1</source>
        <translation>Serie 1</translation>
    </message>
    <message id="document.data.series.2">
        <source>Series 2</source>
        <translation>Serie 2</translation>
    </message>
    <message id="document.data.series.3">
        <source>Series 3</source>
        <translation>Serie 3</translation>
    </message>
    <message id="document.data.series.4">
        <source>Series 4</source>
        <translation>Serie 4</translation>
    </message>
    <message id="document.data.series.5">
        <source>Series 5</source>
        <translation>Serie 5</translation>
    </message>
    <message id="document.data.series.6">
        <source>Series 6</source>
        <translation>Serie 6</translation>
    </message>
    <message id="document.data.series.7">
        <source>Series 7</source>
        <translation>Serie 7</translation>
    </message>
    <message id="document.data.series.8">
        <source>Series 8</source>
        <translation>Serie 8</translation>
    </message>
    <message id="document.data.series.9">
        <source>Series 9</source>
        <translation>Serie 9</translation>
    </message>
    <message id="document.data.series.10">
        <source>Series 10</source>
        <translation>Serie 10</translation>
    </message>
    <message id="document.data.preview.tip">
        <source>How the points of this series are drawn</source>
        <translation>Cómo se dibujan los puntos de esta serie</translation>
    </message>
    <message id="document.data.draw.name">
        <source>How the series is drawn</source>
        <translation>Cómo se dibuja la serie</translation>
    </message>
    <message id="document.data.draw.tip">
        <source>Draw the series as markers, lines or both</source>
        <translation>Dibujar la serie con marcadores, líneas o ambos</translation>
    </message>
    <message id="document.data.draw.markers">
        <source>Markers</source>
        <translation>Marcadores</translation>
    </message>
    <message id="document.data.draw.both">
        <source>Markers and lines</source>
        <translation>Marcadores y líneas</translation>
    </message>
    <message id="document.data.draw.lines">
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message id="document.data.autox.name">
        <source>Automatic X mode</source>
        <translation>Modo de X automática</translation>
    </message>
    <message id="document.data.autox.tip">
        <source>Where the X of a new point comes from</source>
        <translation>De dónde viene la X de un punto nuevo</translation>
    </message>
    <message id="document.data.autox.none">
        <source>From the pointer</source>
        <translation>Del puntero</translation>
    </message>
    <message id="document.data.autox.series1">
        <source>As in series 1</source>
        <translation>Como en la serie 1</translation>
    </message>
    <message id="document.data.initial">
        <source>&amp;Start</source>
        <translation>Ini&amp;cio</translation>
    </message>
    <message id="document.data.initial.name">
        <source>First value</source>
        <translation>Primer valor</translation>
    </message>
    <message id="document.data.initial.tip">
        <source>The value of the first point of a series</source>
        <translation>El valor del primer punto de una serie</translation>
    </message>
    <message id="document.data.step">
        <source>S&amp;tep</source>
        <translation>&amp;Paso</translation>
    </message>
    <message id="document.data.step.name">
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message id="document.data.step.tip">
        <source>What is added from one point to the next</source>
        <translation>Lo que se suma de un punto al siguiente</translation>
    </message>
    <message id="document.data.values">
        <source>At the pointer</source>
        <translation>En el puntero</translation>
    </message>
    <message id="document.data.x.name">
        <source>X value</source>
        <translation>Valor de X</translation>
    </message>
    <message id="document.data.x.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>El valor bajo el puntero; si está fijo, el valor que toma cada punto nuevo</translation>
    </message>
    <message id="document.data.y.name">
        <source>Y value</source>
        <translation>Valor de Y</translation>
    </message>
    <message id="document.data.y.tip">
        <source>The value under the pointer; while locked, the value that every new point takes</source>
        <translation>El valor bajo el puntero; si está fijo, el valor que toma cada punto nuevo</translation>
    </message>
    <message id="document.data.lockx">
        <source>Loc&amp;k</source>
        <translation>&amp;Fijar</translation>
    </message>
    <message id="document.data.lockx.tip">
        <source>Give new points the value typed here</source>
        <translation>Dar a los puntos nuevos el valor escrito aquí</translation>
    </message>
    <message id="document.data.locky">
        <source>L&amp;ock</source>
        <translation>Fija&amp;r</translation>
    </message>
    <message id="document.data.locky.tip">
        <source>Give new points the value typed here</source>
        <translation>Dar a los puntos nuevos el valor escrito aquí</translation>
    </message>
    <message id="document.tab.axes">
        <source>Axis setting</source>
        <translation>Ejes</translation>
    </message>
    <message id="document.tab.axes.tip">
        <source>Mark the axes of the chart and type their values (Ctrl+1)</source>
        <translation>Marcar los ejes del gráfico y escribir sus valores (Ctrl+1)</translation>
    </message>
    <message id="document.tab.digitize">
        <source>Digitizing</source>
        <translation>Digitalizar</translation>
    </message>
    <message id="document.tab.digitize.tip">
        <source>Click the data points (Ctrl+2)</source>
        <translation>Pulsar los puntos de datos (Ctrl+2)</translation>
    </message>
    <message id="document.empty.tab">
        <source>Open a picture of a chart to set its axes and read its points.</source>
        <translation>Abra la imagen de un gráfico para ajustar sus ejes y leer sus puntos.</translation>
    </message>
    <message id="document.empty.title">
        <source>Turn a chart into numbers</source>
        <translation>Convierta un gráfico en números</translation>
    </message>
    <message id="document.empty.steps">
        <source>1.  Open, paste or drop a picture: a scan, a screenshot or a photo of a chart.
2.  Drag the anchors onto its axes and type their values.
3.  Click the data points, then save or copy the numbers.</source>
        <translation>1.  Abra, pegue o suelte una imagen: un escaneo, una captura de pantalla o una foto de un gráfico.
2.  Arrastre las anclas hasta sus ejes y escriba sus valores.
3.  Pulse los puntos de datos y guarde o copie los números.</translation>
    </message>
    <message id="document.empty.open">
        <source>&amp;Open…</source>
        <translation>Ab&amp;rir…</translation>
    </message>
    <message id="document.picture.ccw.name">
        <source>Turn left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message id="document.tool.pointer.tip">
        <source>Pointer: click data points, drag the anchors of the axes (Alt+1)</source>
        <translation>Puntero: pulsar puntos de datos, arrastrar las anclas de los ejes (Alt+1)</translation>
    </message>
    <message id="document.tool.pointer.name">
        <source>Pointer</source>
        <translation>Puntero</translation>
    </message>
    <message id="document.tool.hand.tip">
        <source>Hand: drag to scroll the picture (Alt+2, or hold Ctrl)</source>
        <translation>Mano: arrastrar para desplazar la imagen (Alt+2, o mantener Ctrl)</translation>
    </message>
    <message id="document.tool.hand.name">
        <source>Hand</source>
        <translation>Mano</translation>
    </message>
    <message id="document.tool.zoomIn.tip">
        <source>Zoom in: click, or drag a rectangle that is to fill the view (Alt+3, or hold Ctrl+Alt)</source>
        <translation>Acercar: pulsar, o arrastrar un rectángulo que llenará la vista (Alt+3, o mantener Ctrl+Alt)</translation>
    </message>
    <message id="document.tool.zoomIn.name">
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message id="document.tool.zoomOut.tip">
        <source>Zoom out: click, or drag a rectangle that the view is to shrink into (Alt+4, or hold Ctrl+Alt+Shift)</source>
        <translation>Alejar: pulsar, o arrastrar un rectángulo al que se reducirá la vista (Alt+4, o mantener Ctrl+Alt+Mayús)</translation>
    </message>
    <message id="document.tool.zoomOut.name">
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message id="document.tool.trim.tip">
        <source>Trim: drag a rectangle to cut the picture down to it, on the axis setting page (Alt+5, or hold Ctrl+Super)</source>
        <translation>Recortar: arrastrar un rectángulo al que reducir la imagen, en la página «Ejes» (Alt+5, o mantener Ctrl+Súper)</translation>
    </message>
    <message id="document.tool.trim.name">
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message id="document.picture.ccw.tip">
        <source>Turn the picture a quarter to the left (Ctrl+L)</source>
        <translation>Girar la imagen un cuarto de vuelta a la izquierda (Ctrl+L)</translation>
    </message>
    <message id="document.picture.cw.name">
        <source>Turn right</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message id="document.picture.cw.tip">
        <source>Turn the picture a quarter to the right (Ctrl+R)</source>
        <translation>Girar la imagen un cuarto de vuelta a la derecha (Ctrl+R)</translation>
    </message>
    <message id="document.view.fitwidth.name">
        <source>Fit width</source>
        <translation>Ajustar a lo ancho</translation>
    </message>
    <message id="document.view.fitwidth.tip">
        <source>Make the picture as wide as the window (Ctrl+3)</source>
        <translation>Hacer la imagen tan ancha como la ventana (Ctrl+3)</translation>
    </message>
    <message id="document.view.fitheight.name">
        <source>Fit height</source>
        <translation>Ajustar a lo alto</translation>
    </message>
    <message id="document.view.fitheight.tip">
        <source>Make the picture as high as the window (Ctrl+4)</source>
        <translation>Hacer la imagen tan alta como la ventana (Ctrl+4)</translation>
    </message>
    <message id="document.view.zoom.name">
        <source>Magnification</source>
        <translation>Ampliación</translation>
    </message>
    <message id="document.view.zoom.tip">
        <source>Magnification of the picture</source>
        <translation>Ampliación de la imagen</translation>
    </message>
    <message id="document.view.zoomlabel.tip">
        <source>Magnification of the picture</source>
        <translation>Ampliación de la imagen</translation>
    </message>
    <message id="document.view.table.name">
        <source>Data table</source>
        <translation>Tabla de datos</translation>
    </message>
    <message id="document.view.table.tip">
        <source>Show or hide the data table (Ctrl+T)</source>
        <translation>Mostrar u ocultar la tabla de datos (Ctrl+T)</translation>
    </message>
    <message id="document.table.tip">
        <source>One column per series. Click a column to select its series; Ctrl-click adds one, Shift-click a range.</source>
        <translation>Una columna por serie. Pulse una columna para seleccionar su serie; Ctrl+clic añade una, Mayús+clic un intervalo.</translation>
    </message>
    <message id="document.table.handle.tip">
        <source>Drag to change the width of the table, click to show or hide it</source>
        <translation>Arrastre para cambiar el ancho de la tabla, pulse para mostrarla u ocultarla</translation>
    </message>
    <message id="document.menu.file">
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message id="document.menu.edit">
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message id="document.menu.view">
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message id="document.menu.picture">
        <source>&amp;Picture</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message id="document.menu.axes">
        <source>&amp;Axes</source>
        <translation>E&amp;jes</translation>
    </message>
    <message id="document.menu.data">
        <source>&amp;Data</source>
        <translation>&amp;Datos</translation>
    </message>
    <message id="document.menu.window">
        <source>&amp;Window</source>
        <translation>Ven&amp;tana</translation>
    </message>
    <message id="document.menu.help">
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message id="document.command.new">
        <source>&amp;New Window</source>
        <translation>&amp;Ventana nueva</translation>
    </message>
    <message id="document.command.open">
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message id="document.command.saveAll">
        <source>&amp;Export Data…</source>
        <translation>Exportar &amp;datos…</translation>
    </message>
    <message id="document.command.saveSelection">
        <source>Export Se&amp;lection…</source>
        <translation>&amp;Exportar selección…</translation>
    </message>
    <message id="document.command.close">
        <source>&amp;Close Window</source>
        <translation>&amp;Cerrar ventana</translation>
    </message>
    <message id="document.command.quit">
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message id="document.command.undo">
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message id="document.command.redo">
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message id="document.command.undoNamed">
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message id="document.command.redoNamed">
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
    <message id="document.command.undoSteps">
        <source>Undo &amp;Several Steps</source>
        <extracomment>a submenu that lists the steps that can be taken back</extracomment>
        <translation>Deshacer &amp;varios pasos</translation>
    </message>
    <message id="document.command.redoSteps">
        <source>Redo Se&amp;veral Steps</source>
        <translation>Rehacer v&amp;arios pasos</translation>
    </message>
    <message id="document.undo.step">
        <source>%1. %2</source>
        <extracomment>%1 is a number of steps, %2 the name of one of them, such as Add Point</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message id="document.command.copy">
        <source>&amp;Copy Selected Series</source>
        <translation>&amp;Copiar las series seleccionadas</translation>
    </message>
    <message id="document.command.paste">
        <source>&amp;Paste Picture</source>
        <translation>&amp;Pegar imagen</translation>
    </message>
    <message id="document.command.delete">
        <source>&amp;Delete Points of Selected Series</source>
        <translation>&amp;Borrar los puntos de las series seleccionadas</translation>
    </message>
    <message id="document.command.selectAll">
        <source>Select &amp;All Series</source>
        <translation>Seleccionar todas &amp;las series</translation>
    </message>
    <message id="document.command.axisSetting">
        <source>&amp;Axis Setting</source>
        <translation>Ajuste de &amp;ejes</translation>
    </message>
    <message id="document.command.digitizing">
        <source>&amp;Digitizing</source>
        <translation>&amp;Digitalizar</translation>
    </message>
    <message id="document.command.actualSize">
        <source>Act&amp;ual Size</source>
        <translation>&amp;Tamaño real</translation>
    </message>
    <message id="document.command.zoomIn">
        <source>Zoom &amp;In</source>
        <translation>A&amp;cercar</translation>
    </message>
    <message id="document.command.zoomOut">
        <source>Zoom &amp;Out</source>
        <translation>&amp;Alejar</translation>
    </message>
    <message id="document.command.fitWidth">
        <source>Fit &amp;Width</source>
        <translation>Ajusta&amp;r a lo ancho</translation>
    </message>
    <message id="document.command.fitHeight">
        <source>Fit &amp;Height</source>
        <translation>Ajustar a &amp;lo alto</translation>
    </message>
    <message id="document.command.axisGrid">
        <source>Show Axis &amp;Grid</source>
        <translation>Mo&amp;strar la cuadrícula de los ejes</translation>
    </message>
    <message id="document.command.result">
        <source>Show &amp;Result</source>
        <translation>Mostrar el res&amp;ultado</translation>
    </message>
    <message id="document.command.rotateCcw">
        <source>Turn &amp;Left</source>
        <translation>Girar a la &amp;izquierda</translation>
    </message>
    <message id="document.command.rotateCw">
        <source>Turn &amp;Right</source>
        <translation>&amp;Girar a la derecha</translation>
    </message>
    <message id="document.command.pointerTool">
        <source>&amp;Pointer Tool</source>
        <translation>Herramienta &amp;Puntero</translation>
    </message>
    <message id="document.command.handTool">
        <source>&amp;Hand Tool</source>
        <translation>&amp;Herramienta Mano</translation>
    </message>
    <message id="document.command.zoomInTool">
        <source>Zoom &amp;In Tool</source>
        <translation>Herramienta &amp;Acercar</translation>
    </message>
    <message id="document.command.zoomOutTool">
        <source>Zoom &amp;Out Tool</source>
        <translation>Herramie&amp;nta Alejar</translation>
    </message>
    <message id="document.command.trimTool">
        <source>&amp;Trim Tool</source>
        <translation>Herramienta &amp;Recortar</translation>
    </message>
    <message id="document.command.parallel">
        <source>&amp;Parallel Axes</source>
        <translation>&amp;Ejes paralelos</translation>
    </message>
    <message id="document.command.quadrangle">
        <source>&amp;Quadrangle Axes</source>
        <translation>Eje&amp;s en cuadrilátero</translation>
    </message>
    <message id="document.command.polar">
        <source>P&amp;olar Axes</source>
        <translation>Ejes pola&amp;res</translation>
    </message>
    <message id="document.command.resetPosition">
        <source>&amp;Default Positions</source>
        <translation>&amp;Posiciones predeterminadas</translation>
    </message>
    <message id="document.command.wholePosition">
        <source>&amp;Whole Picture</source>
        <translation>&amp;Toda la imagen</translation>
    </message>
    <message id="document.command.nextSeries">
        <source>&amp;Next Series</source>
        <translation>&amp;Serie siguiente</translation>
    </message>
    <message id="document.command.prevSeries">
        <source>&amp;Previous Series</source>
        <translation>Serie &amp;anterior</translation>
    </message>
    <message id="document.command.drawMarkers">
        <source>Draw &amp;Markers</source>
        <translation>Dibujar &amp;marcadores</translation>
    </message>
    <message id="document.command.drawBoth">
        <source>Draw Markers &amp;and Lines</source>
        <translation>&amp;Dibujar marcadores y líneas</translation>
    </message>
    <message id="document.command.drawLines">
        <source>Draw &amp;Lines</source>
        <translation>Dibujar &amp;líneas</translation>
    </message>
    <message id="document.command.sort">
        <source>&amp;Sort Automatically</source>
        <translation>&amp;Ordenar automáticamente</translation>
    </message>
    <message id="document.command.minimize">
        <source>&amp;Minimize</source>
        <translation>&amp;Minimizar</translation>
    </message>
    <message id="document.command.zoomWindow">
        <source>Fit Window to &amp;Picture</source>
        <translation>&amp;Ajustar la ventana a la imagen</translation>
    </message>
    <message id="document.command.about">
        <source>&amp;About Curvegrab X</source>
        <translation>&amp;Acerca de Curvegrab X</translation>
    </message>
    <message id="ShowTable">
        <source>Show &amp;Table</source>
        <translation>&amp;Mostrar la tabla</translation>
    </message>
    <message id="HideTable">
        <source>Hide &amp;Table</source>
        <translation>&amp;Ocultar la tabla</translation>
    </message>
    <message id="document.about.title">
        <source>Curvegrab X</source>
        <translation>Curvegrab X</translation>
    </message>
    <message id="document.about.text">
        <source>Turns the picture of a chart into numbers.
Version %1. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Convierte la imagen de un gráfico en números.
Versión %1. Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior.</translation>
    </message>
    <message id="document.title.untitled">
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message id="document.title.numbered">
        <source>Untitled %1</source>
        <translation>Sin título %1</translation>
    </message>
    <message id="document.status.open">
        <source>Open, paste or drop a picture to begin.</source>
        <translation>Abra, pegue o suelte una imagen para empezar.</translation>
    </message>
    <message id="document.status.dropOpens">
        <source>Drop to open this picture.</source>
        <translation>Suelte para abrir esta imagen.</translation>
    </message>
    <message id="document.status.dropReplaces">
        <source>Drop to replace the picture.</source>
        <translation>Suelte para sustituir la imagen.</translation>
    </message>
    <message id="document.status.dropNoPicture">
        <source>Only pictures and files of pictures can be dropped here.</source>
        <translation>Aquí solo se pueden soltar imágenes y archivos de imagen.</translation>
    </message>
    <message id="document.status.dropWhileDigitizing">
        <source>The picture can be replaced on the axis page only: switch there first.</source>
        <translation>La imagen solo se puede sustituir en la página «Ejes»: pase antes a ella.</translation>
    </message>
    <message id="document.status.noConverter">
        <source>The axes cannot be used yet: set them on the axis page first.</source>
        <translation>Los ejes todavía no se pueden usar: ajústelos antes en la página «Ejes».</translation>
    </message>
    <message id="document.status.addPoint">
        <source>Click to add a point to series %1.</source>
        <translation>Pulse para añadir un punto a la serie %1.</translation>
    </message>
    <message id="document.status.hand">
        <source>Drag to scroll the picture.</source>
        <translation>Arrastre para desplazar la imagen.</translation>
    </message>
    <message id="document.status.zoomIn">
        <source>Click to zoom in, or drag a rectangle to fill the view with it.</source>
        <translation>Pulse para acercar, o arrastre un rectángulo para llenar con él la vista.</translation>
    </message>
    <message id="document.status.zoomOut">
        <source>Click to zoom out, or drag a rectangle for the view to shrink into.</source>
        <translation>Pulse para alejar, o arrastre un rectángulo al que se reducirá la vista.</translation>
    </message>
    <message id="document.status.trim">
        <source>Drag a rectangle to trim the picture to.</source>
        <translation>Arrastre el rectángulo al que recortar la imagen.</translation>
    </message>
    <message id="document.status.measure">
        <source>Drag a rectangle; the picture stays as it is.</source>
        <translation>Arrastre un rectángulo; la imagen queda como está.</translation>
    </message>
    <message id="document.status.dragAxes">
        <source>Drag the anchors onto the axes of the chart, then type their values.</source>
        <translation>Arrastre las anclas hasta los ejes del gráfico y escriba después sus valores.</translation>
    </message>
    <message id="document.status.digitize">
        <source>Click the data points. Hold Ctrl to scroll by hand.</source>
        <translation>Pulse los puntos de datos. Mantenga Ctrl para desplazar la imagen.</translation>
    </message>
    <message id="document.status.picture">
        <source>Picture %1, %2</source>
        <translation>Imagen %1, %2</translation>
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
        <translation>Serie %1 · punto %2</translation>
    </message>
    <message id="document.status.opening">
        <source>Opening %1…</source>
        <translation>Abriendo %1…</translation>
    </message>
    <message id="document.zoom.percent">
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message id="document.data.sort.tip">
        <source>Keep the points of every series in ascending order</source>
        <translation>Mantener los puntos de cada serie en orden ascendente</translation>
    </message>
    <message id="document.export.noWorkbook">
        <source>The workbook could not be made. A sheet has room for 1048576 rows, and the disk needs some room for temporary files.</source>
        <extracomment>Why a file was not written.</extracomment>
        <translation>No se pudo crear el libro. En una hoja caben 1048576 filas, y el disco necesita algo de espacio para archivos temporales.</translation>
    </message>
    <message id="document.export.missing">
        <source>Workbooks cannot be written because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>Why a file was not written; %1 is a folder.</extracomment>
        <translation>No se pueden escribir libros porque falta una parte de Curvegrab X. Vuelva a instalar el programa. Esa parte debe estar en %1.</translation>
    </message>
    <message id="document.export.text">
        <source>Tab-separated text</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Texto separado por tabuladores</translation>
    </message>
    <message id="document.export.csv">
        <source>Comma-separated values</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Valores separados por comas</translation>
    </message>
    <message id="document.export.json">
        <source>JSON with axes</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>JSON con los ejes</translation>
    </message>
    <message id="document.export.xlsx">
        <source>Excel workbook</source>
        <extracomment>Kind of file in the save panel.</extracomment>
        <translation>Libro de Excel</translation>
    </message>
    <message id="document.command.exportDigits">
        <source>Di&amp;gits of Exported Tables</source>
        <extracomment>Title of a submenu of the File menu; the files are those of data, except for text.</extracomment>
        <translation>Cifras de las &amp;tablas exportadas</translation>
    </message>
    <message id="document.export.digitsAsNeeded">
        <source>As Many as Needed</source>
        <extracomment>First item of that submenu; the others are numbers.</extracomment>
        <translation>Tantas como hagan falta</translation>
    </message>
    <message id="document.command.goToPicture">
        <source>Go to &amp;Picture</source>
        <extracomment>View menu: lets the keyboard work on the picture.</extracomment>
        <translation>&amp;Ir a la imagen</translation>
    </message>
    <message id="document.status.keysMovePart">
        <source>%1: move with arrow keys (Shift 10, Alt 0.1); Page Down for the next.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the name of the chosen part of the axes.</extracomment>
        <translation>%1: flechas para mover (Mayús 10, Alt 0.1); Av Pág para el siguiente.</translation>
    </message>
    <message id="document.status.keysAxes">
        <source>Page Down chooses an anchor, arrow keys move it.</source>
        <extracomment>Status line while the keyboard is used on the picture.</extracomment>
        <translation>Av Pág elige un ancla, las flechas la mueven.</translation>
    </message>
    <message id="document.status.keysDigitize">
        <source>Arrow keys move the pointer (Shift 10, Alt 0.1), Return adds a point to series %1.</source>
        <extracomment>Status line while the keyboard is used on the picture. %1 is the number of the series.</extracomment>
        <translation>Las flechas mueven el puntero (Mayús 10, Alt 0.1), Intro añade un punto a la serie %1.</translation>
    </message>
    <message id="document.status.keysTrim">
        <source>Return begins a rectangle, arrow keys draw it, Return again trims the picture to it.</source>
        <extracomment>Status line while the keyboard is used on the picture, with the trim tool.</extracomment>
        <translation>Intro empieza un rectángulo, las flechas lo trazan, Intro recorta la imagen.</translation>
    </message>
    <message id="document.picture.onAxisPage">
        <source>%1 by %2 pixels. Page: Axis Setting.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 por %2 píxeles. Página: Ejes.</translation>
    </message>
    <message id="document.picture.onDigitizingPage">
        <source>%1 by %2 pixels. Page: Digitizing.</source>
        <extracomment>What a screen reader says of the picture. %1 and %2 are its width and height in pixels.</extracomment>
        <translation>%1 por %2 píxeles. Página: Digitalizar.</translation>
    </message>
</context>
</TS>
