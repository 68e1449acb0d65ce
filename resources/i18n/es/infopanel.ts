<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="InfoNoDoc">
        <source>No document</source>
        <extracomment>In the info panel instead of the picture's size: no document window is in front.</extracomment>
        <translation>Ningún documento</translation>
    </message>
    <message id="InfoNoImage">
        <source>No picture yet</source>
        <extracomment>In the info panel instead of the picture's size.</extracomment>
        <translation>Sin imagen todavía</translation>
    </message>
    <message id="ImageSizeFormat">
        <source>%.0f × %.0f</source>
        <extracomment>Width and height of the picture, in points.</extracomment>
        <translation>%.0f × %.0f</translation>
    </message>
    <message id="ParallelAxis">
        <source>Parallel</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>Paralelos</translation>
    </message>
    <message id="QuadrangleAxis">
        <source>Quadrangle</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>En cuadrilátero</translation>
    </message>
    <message id="PolarAxis">
        <source>Polar</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>Polares</translation>
    </message>
    <message id="InfoAnchor1Label">
        <source>Anchor 1 (lower left):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Ancla 1 (inferior izquierda):</translation>
    </message>
    <message id="InfoAnchor2Label">
        <source>Anchor 2 (lower right):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Ancla 2 (inferior derecha):</translation>
    </message>
    <message id="InfoAnchor3Label">
        <source>Anchor 3 (upper right):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Ancla 3 (superior derecha):</translation>
    </message>
    <message id="InfoAnchor4Label">
        <source>Anchor 4 (upper left):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Ancla 4 (superior izquierda):</translation>
    </message>
    <message id="BottomLenLabel">
        <source>Length of side 1–2:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Longitud del lado 1–2:</translation>
    </message>
    <message id="LeftLenLabel">
        <source>Length of side 1–4:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Longitud del lado 1–4:</translation>
    </message>
    <message id="InfoCenterLabel">
        <source>Centre:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>Centro:</translation>
    </message>
    <message id="InfoRadialLabel">
        <source>End of the radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>Extremo del radio:</translation>
    </message>
    <message id="RadiusLabel">
        <source>Radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>Radio:</translation>
    </message>
    <message id="InclinationLabel">
        <source>Angle of the radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>Ángulo del radio:</translation>
    </message>
    <message id="AxisLenFormat">
        <source>%.1f</source>
        <extracomment>A length in picture points.</extracomment>
        <translation>%.1f</translation>
    </message>
    <message id="AxisDegFormat">
        <source>%.1f°</source>
        <extracomment>An angle in degrees.</extracomment>
        <translation>%.1f°</translation>
    </message>
    <message id="SeriesFormat">
        <source>%d</source>
        <extracomment>Number of the current series.</extracomment>
        <translation>%d</translation>
    </message>
    <message id="RowFormat">
        <source>%d</source>
        <extracomment>Row that the next point of the current series takes, counted from 0.</extracomment>
        <translation>%d</translation>
    </message>
    <message id="NumSeriesFormat">
        <source>%d series</source>
        <extracomment>Number of series with points: none or one.</extracomment>
        <translation>%d serie</translation>
    </message>
    <message id="NumSeriesFormat2">
        <source>%d series</source>
        <extracomment>Number of series with points: two or more.</extracomment>
        <translation>%d series</translation>
    </message>
    <message id="NumRowFormat">
        <source>%d row</source>
        <extracomment>Length of the longest series: none or one.</extracomment>
        <translation>%d fila</translation>
    </message>
    <message id="NumRowsFormat">
        <source>%d rows</source>
        <extracomment>Length of the longest series: two or more.</extracomment>
        <translation>%d filas</translation>
    </message>
    <message id="infopanel.image.title">
        <source>Picture</source>
        <extracomment>Title of the info panel's first section.</extracomment>
        <translation>Imagen</translation>
    </message>
    <message id="infopanel.image.size">
        <source>Size:</source>
        <extracomment>Caption in the info panel: the picture's size.</extracomment>
        <translation>Tamaño:</translation>
    </message>
    <message id="infopanel.axes.title">
        <source>Axes</source>
        <extracomment>Title of the info panel's second section.</extracomment>
        <translation>Ejes</translation>
    </message>
    <message id="infopanel.axes.kind">
        <source>Kind:</source>
        <extracomment>Caption in the info panel: parallel, quadrangle or polar.</extracomment>
        <translation>Tipo:</translation>
    </message>
    <message id="infopanel.data.title">
        <source>Data</source>
        <extracomment>Title of the info panel's third section.</extracomment>
        <translation>Datos</translation>
    </message>
    <message id="infopanel.data.series">
        <source>Current series:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Serie actual:</translation>
    </message>
    <message id="infopanel.data.row">
        <source>Current row:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>Fila actual:</translation>
    </message>
    <message id="infopanel.data.numSeries">
        <source>With points:</source>
        <extracomment>Caption in the info panel: number of series that hold points.</extracomment>
        <translation>Con puntos:</translation>
    </message>
    <message id="infopanel.data.numRows">
        <source>Longest series:</source>
        <extracomment>Caption in the info panel: number of rows.</extracomment>
        <translation>Serie más larga:</translation>
    </message>
    <message id="infopanel.title">
        <source>Info</source>
        <extracomment>Title of the info panel.</extracomment>
        <translation>Información</translation>
    </message>
    <message id="ShowInfo">
        <source>Show I&amp;nfo Panel</source>
        <extracomment>Menu item, while the info panel is hidden.</extracomment>
        <translation>Mostrar el panel de in&amp;formación</translation>
    </message>
    <message id="HideInfo">
        <source>Hide I&amp;nfo Panel</source>
        <extracomment>Menu item, while the info panel is shown.</extracomment>
        <translation>Ocultar el panel de in&amp;formación</translation>
    </message>
</context>
</TS>
