<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="InvalidSetting">
        <source>The axis value was changed</source>
        <extracomment>Title of the messages about axis values that were replaced.</extracomment>
        <translation>軸の値を変更しました</translation>
    </message>
    <message id="InvalidLog">
        <source>A logarithmic axis needs values above zero. A usable value has been filled in: please check it.</source>
        <extracomment>A value of a logarithmic axis was zero or negative.</extracomment>
        <translation>対数軸には 0 より大きい値が必要です。使える値を入れましたので、ご確認ください。</translation>
    </message>
    <message id="SmallMax">
        <source>The maximum has to be greater than the minimum, so it was raised. Please check it.</source>
        <extracomment>The maximum was not above the minimum that was typed.</extracomment>
        <translation>最大値は最小値より大きくなければならないため、引き上げました。ご確認ください。</translation>
    </message>
    <message id="LargeMin">
        <source>The minimum has to be smaller than the maximum, so it was lowered. Please check it.</source>
        <extracomment>The minimum was not below the maximum that was typed.</extracomment>
        <translation>最小値は最大値より小さくなければならないため、引き下げました。ご確認ください。</translation>
    </message>
    <message id="YAxis">
        <source>Y axis</source>
        <extracomment>Title of the box with the values of the Y axis.</extracomment>
        <translation>Y 軸</translation>
    </message>
    <message id="RAxis">
        <source>Radius</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>半径</translation>
    </message>
    <message id="AutoX">
        <source>Automatic X</source>
        <extracomment>Title of the box that chooses how X is filled in.</extracomment>
        <translation>X の自動入力</translation>
    </message>
    <message id="AutoT">
        <source>Automatic angle</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>角度の自動入力</translation>
    </message>
    <message id="EqualX">
        <source>In equal steps of X</source>
        <extracomment>The second choice for filling in X: initial value, then equal steps.</extracomment>
        <translation>X を等間隔に</translation>
    </message>
    <message id="EqualT">
        <source>In equal steps of angle</source>
        <extracomment>The same choice for polar axes.</extracomment>
        <translation>角度を等間隔に</translation>
    </message>
    <message id="SortByX">
        <source>Sort by X</source>
        <extracomment>Check box: keep the points of a series in order of X.</extracomment>
        <translation>X の順に並べる</translation>
    </message>
    <message id="SortByT">
        <source>Sort by angle</source>
        <extracomment>The same check box for polar axes.</extracomment>
        <translation>角度の順に並べる</translation>
    </message>
    <message id="XValue">
        <source>X</source>
        <extracomment>Caption of the pointer's first graph value.</extracomment>
        <translation>X</translation>
    </message>
    <message id="YValue">
        <source>Y</source>
        <extracomment>Caption of the pointer's second graph value.</extracomment>
        <translation>Y</translation>
    </message>
    <message id="TValue">
        <source>θ</source>
        <extracomment>Caption of the pointer's angle, polar axes.</extracomment>
        <translation>θ</translation>
    </message>
    <message id="RValue">
        <source>r</source>
        <extracomment>Caption of the pointer's radius, polar axes.</extracomment>
        <translation>r</translation>
    </message>
    <message id="actionAxisChange">
        <source>Move Axes</source>
        <extracomment>Name of the undoable dragging of an anchor; follows Undo or Redo in the menu.</extracomment>
        <translation>軸の移動</translation>
    </message>
    <message id="actionAxisReset">
        <source>Reset Axes</source>
        <extracomment>Name of the undoable placing of the anchors by command; follows Undo or Redo in the menu.</extracomment>
        <translation>軸のリセット</translation>
    </message>
    <message id="axes.hint.none">
        <source>Drag an anchor, a side or the shaded area onto the axes of the chart</source>
        <extracomment>Status line on the axis page, pointer over nothing.</extracomment>
        <translation>アンカー、辺、または網掛け部分をグラフの軸までドラッグします</translation>
    </message>
    <message id="axes.hint.area">
        <source>Drag to move the whole frame</source>
        <extracomment>Status line: pointer over the enclosed area.</extracomment>
        <translation>ドラッグすると枠全体が動きます</translation>
    </message>
    <message id="axes.hint.parallel.origin">
        <source>Drag to move the corner where X and Y have their minimum</source>
        <extracomment>Status line: parallel axes, anchor 1.</extracomment>
        <translation>ドラッグすると X と Y が最小の角が動きます</translation>
    </message>
    <message id="axes.hint.parallel.maxx">
        <source>Drag to move the X maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 2.</extracomment>
        <translation>ドラッグすると X 最大値のアンカーが動きます</translation>
    </message>
    <message id="axes.hint.parallel.far">
        <source>Drag to move the corner opposite the origin</source>
        <extracomment>Status line: parallel axes, anchor 3.</extracomment>
        <translation>ドラッグすると原点の向かいの角が動きます</translation>
    </message>
    <message id="axes.hint.parallel.maxy">
        <source>Drag to move the Y maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 4.</extracomment>
        <translation>ドラッグすると Y 最大値のアンカーが動きます</translation>
    </message>
    <message id="axes.hint.parallel.xaxis">
        <source>Drag to move the X axis</source>
        <extracomment>Status line: parallel axes, bottom side.</extracomment>
        <translation>ドラッグすると X 軸が動きます</translation>
    </message>
    <message id="axes.hint.parallel.right">
        <source>Drag to move the side at the X maximum</source>
        <extracomment>Status line: parallel axes, right side.</extracomment>
        <translation>ドラッグすると X 最大値の辺が動きます</translation>
    </message>
    <message id="axes.hint.parallel.top">
        <source>Drag to move the side at the Y maximum</source>
        <extracomment>Status line: parallel axes, top side.</extracomment>
        <translation>ドラッグすると Y 最大値の辺が動きます</translation>
    </message>
    <message id="axes.hint.parallel.yaxis">
        <source>Drag to move the Y axis</source>
        <extracomment>Status line: parallel axes, left side.</extracomment>
        <translation>ドラッグすると Y 軸が動きます</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomleft">
        <source>Drag to move the bottom left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 1.</extracomment>
        <translation>ドラッグすると左下の角が動きます</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomright">
        <source>Drag to move the bottom right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 2.</extracomment>
        <translation>ドラッグすると右下の角が動きます</translation>
    </message>
    <message id="axes.hint.quadrangle.topright">
        <source>Drag to move the top right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 3.</extracomment>
        <translation>ドラッグすると右上の角が動きます</translation>
    </message>
    <message id="axes.hint.quadrangle.topleft">
        <source>Drag to move the top left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 4.</extracomment>
        <translation>ドラッグすると左上の角が動きます</translation>
    </message>
    <message id="axes.hint.quadrangle.bottom">
        <source>Drag to swing the bottom side</source>
        <extracomment>Status line: quadrangle axes, bottom side.</extracomment>
        <translation>ドラッグすると下の辺の傾きが変わります</translation>
    </message>
    <message id="axes.hint.quadrangle.right">
        <source>Drag to swing the right side</source>
        <extracomment>Status line: quadrangle axes, right side.</extracomment>
        <translation>ドラッグすると右の辺の傾きが変わります</translation>
    </message>
    <message id="axes.hint.quadrangle.top">
        <source>Drag to swing the top side</source>
        <extracomment>Status line: quadrangle axes, top side.</extracomment>
        <translation>ドラッグすると上の辺の傾きが変わります</translation>
    </message>
    <message id="axes.hint.quadrangle.left">
        <source>Drag to swing the left side</source>
        <extracomment>Status line: quadrangle axes, left side.</extracomment>
        <translation>ドラッグすると左の辺の傾きが変わります</translation>
    </message>
    <message id="axes.hint.polar.none">
        <source>Drag the centre, a handle or the disc onto the axes of the chart</source>
        <extracomment>Status line on the axis page with polar axes, pointer over nothing.</extracomment>
        <translation>中心、ハンドル、または円をグラフの軸までドラッグします</translation>
    </message>
    <message id="axes.hint.polar.area">
        <source>Drag to move the disc</source>
        <extracomment>Status line: polar axes, pointer inside the circle.</extracomment>
        <translation>ドラッグすると円が動きます</translation>
    </message>
    <message id="axes.hint.polar.centre">
        <source>Drag to move the disc by its centre</source>
        <extracomment>Status line: polar axes, centre.</extracomment>
        <translation>中心をドラッグすると円が動きます</translation>
    </message>
    <message id="axes.hint.polar.end">
        <source>Drag to move the end of the radius</source>
        <extracomment>Status line: polar axes, radius end.</extracomment>
        <translation>ドラッグすると半径の端が動きます</translation>
    </message>
    <message id="axes.hint.polar.swing">
        <source>Drag to turn and resize the disc by this corner</source>
        <extracomment>Status line: polar axes, a handle across the radius.</extracomment>
        <translation>この角をドラッグすると円の向きと大きさが変わります</translation>
    </message>
    <message id="axes.hint.polar.turn">
        <source>Drag to turn the radius</source>
        <extracomment>Status line: polar axes, a rotation handle.</extracomment>
        <translation>ドラッグすると半径の向きが変わります</translation>
    </message>
    <message id="axes.hint.polar.size">
        <source>Drag to make the radius longer or shorter</source>
        <extracomment>Status line: polar axes, a size handle.</extracomment>
        <translation>ドラッグすると半径の長さが変わります</translation>
    </message>
    <message id="axes.part.frame">
        <source>Whole frame</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>枠全体</translation>
    </message>
    <message id="axes.part.origin">
        <source>Origin corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>原点の角</translation>
    </message>
    <message id="axes.part.maxx">
        <source>X maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>X 最大値のアンカー</translation>
    </message>
    <message id="axes.part.far">
        <source>Corner opposite the origin</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>原点の向かいの角</translation>
    </message>
    <message id="axes.part.maxy">
        <source>Y maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Y 最大値のアンカー</translation>
    </message>
    <message id="axes.part.xaxis">
        <source>X axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>X 軸</translation>
    </message>
    <message id="axes.part.yaxis">
        <source>Y axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Y 軸</translation>
    </message>
    <message id="axes.part.bottomside">
        <source>Bottom side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>下の辺</translation>
    </message>
    <message id="axes.part.rightside">
        <source>Right side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>右の辺</translation>
    </message>
    <message id="axes.part.topside">
        <source>Top side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>上の辺</translation>
    </message>
    <message id="axes.part.leftside">
        <source>Left side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>左の辺</translation>
    </message>
    <message id="axes.part.bottomleft">
        <source>Bottom left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>左下の角</translation>
    </message>
    <message id="axes.part.bottomright">
        <source>Bottom right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>右下の角</translation>
    </message>
    <message id="axes.part.topright">
        <source>Top right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>右上の角</translation>
    </message>
    <message id="axes.part.topleft">
        <source>Top left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>左上の角</translation>
    </message>
    <message id="axes.part.centre">
        <source>Centre of the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>円の中心</translation>
    </message>
    <message id="axes.part.end">
        <source>End of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>半径の端</translation>
    </message>
    <message id="axes.part.swing">
        <source>Corner that turns and resizes the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>円の向きと大きさを変える角</translation>
    </message>
    <message id="axes.part.turn">
        <source>Handle that turns the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>半径の向きを変えるハンドル</translation>
    </message>
    <message id="axes.part.size">
        <source>Handle for the length of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>半径の長さを変えるハンドル</translation>
    </message>
</context>
</TS>
