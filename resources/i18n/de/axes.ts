<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="InvalidSetting">
        <source>The axis value was changed</source>
        <extracomment>Title of the messages about axis values that were replaced.</extracomment>
        <translation>Der Achsenwert wurde geändert</translation>
    </message>
    <message id="InvalidLog">
        <source>A logarithmic axis needs values above zero. A usable value has been filled in: please check it.</source>
        <extracomment>A value of a logarithmic axis was zero or negative.</extracomment>
        <translation>Eine logarithmische Achse braucht Werte über null. Ein gültiger Wert wurde eingesetzt: Bitte prüfen Sie ihn.</translation>
    </message>
    <message id="SmallMax">
        <source>The maximum has to be greater than the minimum, so it was raised. Please check it.</source>
        <extracomment>The maximum was not above the minimum that was typed.</extracomment>
        <translation>Das Maximum muss größer als das Minimum sein und wurde angehoben. Bitte prüfen Sie es.</translation>
    </message>
    <message id="LargeMin">
        <source>The minimum has to be smaller than the maximum, so it was lowered. Please check it.</source>
        <extracomment>The minimum was not below the maximum that was typed.</extracomment>
        <translation>Das Minimum muss kleiner als das Maximum sein und wurde gesenkt. Bitte prüfen Sie es.</translation>
    </message>
    <message id="YAxis">
        <source>Y axis</source>
        <extracomment>Title of the box with the values of the Y axis.</extracomment>
        <translation>Y-Achse</translation>
    </message>
    <message id="RAxis">
        <source>Radius</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Radius</translation>
    </message>
    <message id="AutoX">
        <source>Automatic X</source>
        <extracomment>Title of the box that chooses how X is filled in.</extracomment>
        <translation>X automatisch</translation>
    </message>
    <message id="AutoT">
        <source>Automatic angle</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Winkel automatisch</translation>
    </message>
    <message id="EqualX">
        <source>In equal steps of X</source>
        <extracomment>The second choice for filling in X: initial value, then equal steps.</extracomment>
        <translation>In gleichen X-Schritten</translation>
    </message>
    <message id="EqualT">
        <source>In equal steps of angle</source>
        <extracomment>The same choice for polar axes.</extracomment>
        <translation>In gleichen Winkelschritten</translation>
    </message>
    <message id="SortByX">
        <source>Sort by X</source>
        <extracomment>Check box: keep the points of a series in order of X.</extracomment>
        <translation>Nach X sortieren</translation>
    </message>
    <message id="SortByT">
        <source>Sort by angle</source>
        <extracomment>The same check box for polar axes.</extracomment>
        <translation>Nach Winkel sortieren</translation>
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
        <translation>Achsen verschieben</translation>
    </message>
    <message id="actionAxisReset">
        <source>Reset Axes</source>
        <extracomment>Name of the undoable placing of the anchors by command; follows Undo or Redo in the menu.</extracomment>
        <translation>Achsen zurücksetzen</translation>
    </message>
    <message id="axes.hint.none">
        <source>Drag an anchor, a side or the shaded area onto the axes of the chart</source>
        <extracomment>Status line on the axis page, pointer over nothing.</extracomment>
        <translation>Ziehen Sie einen Anker, eine Seite oder die Fläche auf die Achsen des Diagramms</translation>
    </message>
    <message id="axes.hint.area">
        <source>Drag to move the whole frame</source>
        <extracomment>Status line: pointer over the enclosed area.</extracomment>
        <translation>Ziehen, um den ganzen Rahmen zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.origin">
        <source>Drag to move the corner where X and Y have their minimum</source>
        <extracomment>Status line: parallel axes, anchor 1.</extracomment>
        <translation>Ziehen, um die Ecke mit dem Minimum von X und Y zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.maxx">
        <source>Drag to move the X maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 2.</extracomment>
        <translation>Ziehen, um den Anker des X-Maximums zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.far">
        <source>Drag to move the corner opposite the origin</source>
        <extracomment>Status line: parallel axes, anchor 3.</extracomment>
        <translation>Ziehen, um die Ecke gegenüber dem Ursprung zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.maxy">
        <source>Drag to move the Y maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 4.</extracomment>
        <translation>Ziehen, um den Anker des Y-Maximums zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.xaxis">
        <source>Drag to move the X axis</source>
        <extracomment>Status line: parallel axes, bottom side.</extracomment>
        <translation>Ziehen, um die X-Achse zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.right">
        <source>Drag to move the side at the X maximum</source>
        <extracomment>Status line: parallel axes, right side.</extracomment>
        <translation>Ziehen, um die Seite am X-Maximum zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.top">
        <source>Drag to move the side at the Y maximum</source>
        <extracomment>Status line: parallel axes, top side.</extracomment>
        <translation>Ziehen, um die Seite am Y-Maximum zu verschieben</translation>
    </message>
    <message id="axes.hint.parallel.yaxis">
        <source>Drag to move the Y axis</source>
        <extracomment>Status line: parallel axes, left side.</extracomment>
        <translation>Ziehen, um die Y-Achse zu verschieben</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomleft">
        <source>Drag to move the bottom left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 1.</extracomment>
        <translation>Ziehen, um die linke untere Ecke zu verschieben</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomright">
        <source>Drag to move the bottom right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 2.</extracomment>
        <translation>Ziehen, um die rechte untere Ecke zu verschieben</translation>
    </message>
    <message id="axes.hint.quadrangle.topright">
        <source>Drag to move the top right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 3.</extracomment>
        <translation>Ziehen, um die rechte obere Ecke zu verschieben</translation>
    </message>
    <message id="axes.hint.quadrangle.topleft">
        <source>Drag to move the top left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 4.</extracomment>
        <translation>Ziehen, um die linke obere Ecke zu verschieben</translation>
    </message>
    <message id="axes.hint.quadrangle.bottom">
        <source>Drag to swing the bottom side</source>
        <extracomment>Status line: quadrangle axes, bottom side.</extracomment>
        <translation>Ziehen, um die untere Seite zu schwenken</translation>
    </message>
    <message id="axes.hint.quadrangle.right">
        <source>Drag to swing the right side</source>
        <extracomment>Status line: quadrangle axes, right side.</extracomment>
        <translation>Ziehen, um die rechte Seite zu schwenken</translation>
    </message>
    <message id="axes.hint.quadrangle.top">
        <source>Drag to swing the top side</source>
        <extracomment>Status line: quadrangle axes, top side.</extracomment>
        <translation>Ziehen, um die obere Seite zu schwenken</translation>
    </message>
    <message id="axes.hint.quadrangle.left">
        <source>Drag to swing the left side</source>
        <extracomment>Status line: quadrangle axes, left side.</extracomment>
        <translation>Ziehen, um die linke Seite zu schwenken</translation>
    </message>
    <message id="axes.hint.polar.none">
        <source>Drag the centre, a handle or the disc onto the axes of the chart</source>
        <extracomment>Status line on the axis page with polar axes, pointer over nothing.</extracomment>
        <translation>Ziehen Sie die Mitte, einen Griff oder die Scheibe auf die Achsen des Diagramms</translation>
    </message>
    <message id="axes.hint.polar.area">
        <source>Drag to move the disc</source>
        <extracomment>Status line: polar axes, pointer inside the circle.</extracomment>
        <translation>Ziehen, um die Scheibe zu verschieben</translation>
    </message>
    <message id="axes.hint.polar.centre">
        <source>Drag to move the disc by its centre</source>
        <extracomment>Status line: polar axes, centre.</extracomment>
        <translation>Ziehen, um die Scheibe an ihrer Mitte zu verschieben</translation>
    </message>
    <message id="axes.hint.polar.end">
        <source>Drag to move the end of the radius</source>
        <extracomment>Status line: polar axes, radius end.</extracomment>
        <translation>Ziehen, um das Ende des Radius zu verschieben</translation>
    </message>
    <message id="axes.hint.polar.swing">
        <source>Drag to turn and resize the disc by this corner</source>
        <extracomment>Status line: polar axes, a handle across the radius.</extracomment>
        <translation>Ziehen, um die Scheibe an dieser Ecke zu drehen und ihre Größe zu ändern</translation>
    </message>
    <message id="axes.hint.polar.turn">
        <source>Drag to turn the radius</source>
        <extracomment>Status line: polar axes, a rotation handle.</extracomment>
        <translation>Ziehen, um den Radius zu drehen</translation>
    </message>
    <message id="axes.hint.polar.size">
        <source>Drag to make the radius longer or shorter</source>
        <extracomment>Status line: polar axes, a size handle.</extracomment>
        <translation>Ziehen, um den Radius länger oder kürzer zu machen</translation>
    </message>
    <message id="axes.part.frame">
        <source>Whole frame</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ganzer Rahmen</translation>
    </message>
    <message id="axes.part.origin">
        <source>Origin corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ecke im Ursprung</translation>
    </message>
    <message id="axes.part.maxx">
        <source>X maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Anker des X-Maximums</translation>
    </message>
    <message id="axes.part.far">
        <source>Corner opposite the origin</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ecke gegenüber dem Ursprung</translation>
    </message>
    <message id="axes.part.maxy">
        <source>Y maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Anker des Y-Maximums</translation>
    </message>
    <message id="axes.part.xaxis">
        <source>X axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>X-Achse</translation>
    </message>
    <message id="axes.part.yaxis">
        <source>Y axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Y-Achse</translation>
    </message>
    <message id="axes.part.bottomside">
        <source>Bottom side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Untere Seite</translation>
    </message>
    <message id="axes.part.rightside">
        <source>Right side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Rechte Seite</translation>
    </message>
    <message id="axes.part.topside">
        <source>Top side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Obere Seite</translation>
    </message>
    <message id="axes.part.leftside">
        <source>Left side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Linke Seite</translation>
    </message>
    <message id="axes.part.bottomleft">
        <source>Bottom left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Linke untere Ecke</translation>
    </message>
    <message id="axes.part.bottomright">
        <source>Bottom right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Rechte untere Ecke</translation>
    </message>
    <message id="axes.part.topright">
        <source>Top right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Rechte obere Ecke</translation>
    </message>
    <message id="axes.part.topleft">
        <source>Top left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Linke obere Ecke</translation>
    </message>
    <message id="axes.part.centre">
        <source>Centre of the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Mitte der Scheibe</translation>
    </message>
    <message id="axes.part.end">
        <source>End of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ende des Radius</translation>
    </message>
    <message id="axes.part.swing">
        <source>Corner that turns and resizes the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ecke für Drehung und Größe der Scheibe</translation>
    </message>
    <message id="axes.part.turn">
        <source>Handle that turns the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Griff, der den Radius dreht</translation>
    </message>
    <message id="axes.part.size">
        <source>Handle for the length of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Griff für die Länge des Radius</translation>
    </message>
</context>
</TS>
