<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="InfoNoDoc">
        <source>No document</source>
        <extracomment>In the info panel instead of the picture's size: no document window is in front.</extracomment>
        <translation>ドキュメントなし</translation>
    </message>
    <message id="InfoNoImage">
        <source>No picture yet</source>
        <extracomment>In the info panel instead of the picture's size.</extracomment>
        <translation>画像なし</translation>
    </message>
    <message id="ImageSizeFormat">
        <source>%.0f × %.0f</source>
        <extracomment>Width and height of the picture, in points.</extracomment>
        <translation>%.0f × %.0f</translation>
    </message>
    <message id="ParallelAxis">
        <source>Parallel</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>平行</translation>
    </message>
    <message id="QuadrangleAxis">
        <source>Quadrangle</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>四角形</translation>
    </message>
    <message id="PolarAxis">
        <source>Polar</source>
        <extracomment>Kind of axes in the info panel.</extracomment>
        <translation>極座標</translation>
    </message>
    <message id="InfoAnchor1Label">
        <source>Anchor 1 (lower left):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>アンカー 1 (左下):</translation>
    </message>
    <message id="InfoAnchor2Label">
        <source>Anchor 2 (lower right):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>アンカー 2 (右下):</translation>
    </message>
    <message id="InfoAnchor3Label">
        <source>Anchor 3 (upper right):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>アンカー 3 (右上):</translation>
    </message>
    <message id="InfoAnchor4Label">
        <source>Anchor 4 (upper left):</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>アンカー 4 (左上):</translation>
    </message>
    <message id="BottomLenLabel">
        <source>Length of side 1–2:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>辺 1–2 の長さ:</translation>
    </message>
    <message id="LeftLenLabel">
        <source>Length of side 1–4:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>辺 1–4 の長さ:</translation>
    </message>
    <message id="InfoCenterLabel">
        <source>Centre:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>中心:</translation>
    </message>
    <message id="InfoRadialLabel">
        <source>End of the radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>半径の端:</translation>
    </message>
    <message id="RadiusLabel">
        <source>Radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>半径:</translation>
    </message>
    <message id="InclinationLabel">
        <source>Angle of the radius:</source>
        <extracomment>Caption in the info panel, for polar axes.</extracomment>
        <translation>半径の角度:</translation>
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
        <translation>%d 系列</translation>
    </message>
    <message id="NumSeriesFormat2">
        <source>%d series</source>
        <extracomment>Number of series with points: two or more.</extracomment>
        <translation>%d 系列</translation>
    </message>
    <message id="NumRowFormat">
        <source>%d row</source>
        <extracomment>Length of the longest series: none or one.</extracomment>
        <translation>%d 行</translation>
    </message>
    <message id="NumRowsFormat">
        <source>%d rows</source>
        <extracomment>Length of the longest series: two or more.</extracomment>
        <translation>%d 行</translation>
    </message>
    <message id="infopanel.image.title">
        <source>Picture</source>
        <extracomment>Title of the info panel's first section.</extracomment>
        <translation>画像</translation>
    </message>
    <message id="infopanel.image.size">
        <source>Size:</source>
        <extracomment>Caption in the info panel: the picture's size.</extracomment>
        <translation>サイズ:</translation>
    </message>
    <message id="infopanel.axes.title">
        <source>Axes</source>
        <extracomment>Title of the info panel's second section.</extracomment>
        <translation>軸</translation>
    </message>
    <message id="infopanel.axes.kind">
        <source>Kind:</source>
        <extracomment>Caption in the info panel: parallel, quadrangle or polar.</extracomment>
        <translation>種類:</translation>
    </message>
    <message id="infopanel.data.title">
        <source>Data</source>
        <extracomment>Title of the info panel's third section.</extracomment>
        <translation>データ</translation>
    </message>
    <message id="infopanel.data.series">
        <source>Current series:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>現在の系列:</translation>
    </message>
    <message id="infopanel.data.row">
        <source>Current row:</source>
        <extracomment>Caption in the info panel.</extracomment>
        <translation>現在の行:</translation>
    </message>
    <message id="infopanel.data.numSeries">
        <source>With points:</source>
        <extracomment>Caption in the info panel: number of series that hold points.</extracomment>
        <translation>点のある系列:</translation>
    </message>
    <message id="infopanel.data.numRows">
        <source>Longest series:</source>
        <extracomment>Caption in the info panel: number of rows.</extracomment>
        <translation>最も長い系列:</translation>
    </message>
    <message id="infopanel.title">
        <source>Info</source>
        <extracomment>Title of the info panel.</extracomment>
        <translation>情報</translation>
    </message>
    <message id="ShowInfo">
        <source>Show I&amp;nfo Panel</source>
        <extracomment>Menu item, while the info panel is hidden.</extracomment>
        <translation>情報パネルを表示(&amp;N)</translation>
    </message>
    <message id="HideInfo">
        <source>Hide I&amp;nfo Panel</source>
        <extracomment>Menu item, while the info panel is shown.</extracomment>
        <translation>情報パネルを隠す(&amp;N)</translation>
    </message>
</context>
</TS>
