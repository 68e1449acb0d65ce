<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="InvalidSetting">
        <source>The axis value was changed</source>
        <extracomment>Title of the messages about axis values that were replaced.</extracomment>
        <translation>La valeur de l’axe a été modifiée</translation>
    </message>
    <message id="InvalidLog">
        <source>A logarithmic axis needs values above zero. A usable value has been filled in: please check it.</source>
        <extracomment>A value of a logarithmic axis was zero or negative.</extracomment>
        <translation>Un axe logarithmique demande des valeurs supérieures à zéro. Une valeur utilisable a été inscrite : vérifiez-la.</translation>
    </message>
    <message id="SmallMax">
        <source>The maximum has to be greater than the minimum, so it was raised. Please check it.</source>
        <extracomment>The maximum was not above the minimum that was typed.</extracomment>
        <translation>Le maximum doit être plus grand que le minimum ; il a donc été relevé. Vérifiez-le.</translation>
    </message>
    <message id="LargeMin">
        <source>The minimum has to be smaller than the maximum, so it was lowered. Please check it.</source>
        <extracomment>The minimum was not below the maximum that was typed.</extracomment>
        <translation>Le minimum doit être plus petit que le maximum ; il a donc été abaissé. Vérifiez-le.</translation>
    </message>
    <message id="YAxis">
        <source>Y axis</source>
        <extracomment>Title of the box with the values of the Y axis.</extracomment>
        <translation>Axe Y</translation>
    </message>
    <message id="RAxis">
        <source>Radius</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Rayon</translation>
    </message>
    <message id="AutoX">
        <source>Automatic X</source>
        <extracomment>Title of the box that chooses how X is filled in.</extracomment>
        <translation>X automatique</translation>
    </message>
    <message id="AutoT">
        <source>Automatic angle</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Angle automatique</translation>
    </message>
    <message id="EqualX">
        <source>In equal steps of X</source>
        <extracomment>The second choice for filling in X: initial value, then equal steps.</extracomment>
        <translation>Par pas égaux de X</translation>
    </message>
    <message id="EqualT">
        <source>In equal steps of angle</source>
        <extracomment>The same choice for polar axes.</extracomment>
        <translation>Par pas égaux d’angle</translation>
    </message>
    <message id="SortByX">
        <source>Sort by X</source>
        <extracomment>Check box: keep the points of a series in order of X.</extracomment>
        <translation>Trier selon X</translation>
    </message>
    <message id="SortByT">
        <source>Sort by angle</source>
        <extracomment>The same check box for polar axes.</extracomment>
        <translation>Trier selon l’angle</translation>
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
        <translation>Déplacer les axes</translation>
    </message>
    <message id="actionAxisReset">
        <source>Reset Axes</source>
        <extracomment>Name of the undoable placing of the anchors by command; follows Undo or Redo in the menu.</extracomment>
        <translation>Réinitialiser les axes</translation>
    </message>
    <message id="axes.hint.none">
        <source>Drag an anchor, a side or the shaded area onto the axes of the chart</source>
        <extracomment>Status line on the axis page, pointer over nothing.</extracomment>
        <translation>Faites glisser une ancre, un côté ou la zone ombrée sur les axes du graphique</translation>
    </message>
    <message id="axes.hint.area">
        <source>Drag to move the whole frame</source>
        <extracomment>Status line: pointer over the enclosed area.</extracomment>
        <translation>Faites glisser pour déplacer tout le cadre</translation>
    </message>
    <message id="axes.hint.parallel.origin">
        <source>Drag to move the corner where X and Y have their minimum</source>
        <extracomment>Status line: parallel axes, anchor 1.</extracomment>
        <translation>Faites glisser pour déplacer le coin où X et Y sont au minimum</translation>
    </message>
    <message id="axes.hint.parallel.maxx">
        <source>Drag to move the X maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 2.</extracomment>
        <translation>Faites glisser pour déplacer l’ancre du maximum de X</translation>
    </message>
    <message id="axes.hint.parallel.far">
        <source>Drag to move the corner opposite the origin</source>
        <extracomment>Status line: parallel axes, anchor 3.</extracomment>
        <translation>Faites glisser pour déplacer le coin opposé à l’origine</translation>
    </message>
    <message id="axes.hint.parallel.maxy">
        <source>Drag to move the Y maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 4.</extracomment>
        <translation>Faites glisser pour déplacer l’ancre du maximum de Y</translation>
    </message>
    <message id="axes.hint.parallel.xaxis">
        <source>Drag to move the X axis</source>
        <extracomment>Status line: parallel axes, bottom side.</extracomment>
        <translation>Faites glisser pour déplacer l’axe X</translation>
    </message>
    <message id="axes.hint.parallel.right">
        <source>Drag to move the side at the X maximum</source>
        <extracomment>Status line: parallel axes, right side.</extracomment>
        <translation>Faites glisser pour déplacer le côté du maximum de X</translation>
    </message>
    <message id="axes.hint.parallel.top">
        <source>Drag to move the side at the Y maximum</source>
        <extracomment>Status line: parallel axes, top side.</extracomment>
        <translation>Faites glisser pour déplacer le côté du maximum de Y</translation>
    </message>
    <message id="axes.hint.parallel.yaxis">
        <source>Drag to move the Y axis</source>
        <extracomment>Status line: parallel axes, left side.</extracomment>
        <translation>Faites glisser pour déplacer l’axe Y</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomleft">
        <source>Drag to move the bottom left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 1.</extracomment>
        <translation>Faites glisser pour déplacer le coin inférieur gauche</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomright">
        <source>Drag to move the bottom right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 2.</extracomment>
        <translation>Faites glisser pour déplacer le coin inférieur droit</translation>
    </message>
    <message id="axes.hint.quadrangle.topright">
        <source>Drag to move the top right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 3.</extracomment>
        <translation>Faites glisser pour déplacer le coin supérieur droit</translation>
    </message>
    <message id="axes.hint.quadrangle.topleft">
        <source>Drag to move the top left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 4.</extracomment>
        <translation>Faites glisser pour déplacer le coin supérieur gauche</translation>
    </message>
    <message id="axes.hint.quadrangle.bottom">
        <source>Drag to swing the bottom side</source>
        <extracomment>Status line: quadrangle axes, bottom side.</extracomment>
        <translation>Faites glisser pour faire pivoter le côté inférieur</translation>
    </message>
    <message id="axes.hint.quadrangle.right">
        <source>Drag to swing the right side</source>
        <extracomment>Status line: quadrangle axes, right side.</extracomment>
        <translation>Faites glisser pour faire pivoter le côté droit</translation>
    </message>
    <message id="axes.hint.quadrangle.top">
        <source>Drag to swing the top side</source>
        <extracomment>Status line: quadrangle axes, top side.</extracomment>
        <translation>Faites glisser pour faire pivoter le côté supérieur</translation>
    </message>
    <message id="axes.hint.quadrangle.left">
        <source>Drag to swing the left side</source>
        <extracomment>Status line: quadrangle axes, left side.</extracomment>
        <translation>Faites glisser pour faire pivoter le côté gauche</translation>
    </message>
    <message id="axes.hint.polar.none">
        <source>Drag the centre, a handle or the disc onto the axes of the chart</source>
        <extracomment>Status line on the axis page with polar axes, pointer over nothing.</extracomment>
        <translation>Faites glisser le centre, une poignée ou le disque sur les axes du graphique</translation>
    </message>
    <message id="axes.hint.polar.area">
        <source>Drag to move the disc</source>
        <extracomment>Status line: polar axes, pointer inside the circle.</extracomment>
        <translation>Faites glisser pour déplacer le disque</translation>
    </message>
    <message id="axes.hint.polar.centre">
        <source>Drag to move the disc by its centre</source>
        <extracomment>Status line: polar axes, centre.</extracomment>
        <translation>Faites glisser pour déplacer le disque par son centre</translation>
    </message>
    <message id="axes.hint.polar.end">
        <source>Drag to move the end of the radius</source>
        <extracomment>Status line: polar axes, radius end.</extracomment>
        <translation>Faites glisser pour déplacer l’extrémité du rayon</translation>
    </message>
    <message id="axes.hint.polar.swing">
        <source>Drag to turn and resize the disc by this corner</source>
        <extracomment>Status line: polar axes, a handle across the radius.</extracomment>
        <translation>Faites glisser pour faire tourner et redimensionner le disque par ce coin</translation>
    </message>
    <message id="axes.hint.polar.turn">
        <source>Drag to turn the radius</source>
        <extracomment>Status line: polar axes, a rotation handle.</extracomment>
        <translation>Faites glisser pour faire tourner le rayon</translation>
    </message>
    <message id="axes.hint.polar.size">
        <source>Drag to make the radius longer or shorter</source>
        <extracomment>Status line: polar axes, a size handle.</extracomment>
        <translation>Faites glisser pour allonger ou raccourcir le rayon</translation>
    </message>
    <message id="axes.part.frame">
        <source>Whole frame</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Tout le cadre</translation>
    </message>
    <message id="axes.part.origin">
        <source>Origin corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin de l’origine</translation>
    </message>
    <message id="axes.part.maxx">
        <source>X maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ancre du maximum de X</translation>
    </message>
    <message id="axes.part.far">
        <source>Corner opposite the origin</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin opposé à l’origine</translation>
    </message>
    <message id="axes.part.maxy">
        <source>Y maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ancre du maximum de Y</translation>
    </message>
    <message id="axes.part.xaxis">
        <source>X axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Axe X</translation>
    </message>
    <message id="axes.part.yaxis">
        <source>Y axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Axe Y</translation>
    </message>
    <message id="axes.part.bottomside">
        <source>Bottom side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Côté inférieur</translation>
    </message>
    <message id="axes.part.rightside">
        <source>Right side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Côté droit</translation>
    </message>
    <message id="axes.part.topside">
        <source>Top side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Côté supérieur</translation>
    </message>
    <message id="axes.part.leftside">
        <source>Left side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Côté gauche</translation>
    </message>
    <message id="axes.part.bottomleft">
        <source>Bottom left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin inférieur gauche</translation>
    </message>
    <message id="axes.part.bottomright">
        <source>Bottom right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin inférieur droit</translation>
    </message>
    <message id="axes.part.topright">
        <source>Top right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin supérieur droit</translation>
    </message>
    <message id="axes.part.topleft">
        <source>Top left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin supérieur gauche</translation>
    </message>
    <message id="axes.part.centre">
        <source>Centre of the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Centre du disque</translation>
    </message>
    <message id="axes.part.end">
        <source>End of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Extrémité du rayon</translation>
    </message>
    <message id="axes.part.swing">
        <source>Corner that turns and resizes the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Coin qui fait tourner et redimensionne le disque</translation>
    </message>
    <message id="axes.part.turn">
        <source>Handle that turns the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Poignée qui fait tourner le rayon</translation>
    </message>
    <message id="axes.part.size">
        <source>Handle for the length of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Poignée de la longueur du rayon</translation>
    </message>
</context>
</TS>
