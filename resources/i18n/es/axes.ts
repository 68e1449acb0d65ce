<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="InvalidSetting">
        <source>The axis value was changed</source>
        <extracomment>Title of the messages about axis values that were replaced.</extracomment>
        <translation>Se ha cambiado el valor del eje</translation>
    </message>
    <message id="InvalidLog">
        <source>A logarithmic axis needs values above zero. A usable value has been filled in: please check it.</source>
        <extracomment>A value of a logarithmic axis was zero or negative.</extracomment>
        <translation>Un eje logarítmico necesita valores mayores que cero. Se ha puesto un valor utilizable: compruébelo.</translation>
    </message>
    <message id="SmallMax">
        <source>The maximum has to be greater than the minimum, so it was raised. Please check it.</source>
        <extracomment>The maximum was not above the minimum that was typed.</extracomment>
        <translation>El máximo debe ser mayor que el mínimo, así que se ha aumentado. Compruébelo.</translation>
    </message>
    <message id="LargeMin">
        <source>The minimum has to be smaller than the maximum, so it was lowered. Please check it.</source>
        <extracomment>The minimum was not below the maximum that was typed.</extracomment>
        <translation>El mínimo debe ser menor que el máximo, así que se ha reducido. Compruébelo.</translation>
    </message>
    <message id="YAxis">
        <source>Y axis</source>
        <extracomment>Title of the box with the values of the Y axis.</extracomment>
        <translation>Eje Y</translation>
    </message>
    <message id="RAxis">
        <source>Radius</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Radio</translation>
    </message>
    <message id="AutoX">
        <source>Automatic X</source>
        <extracomment>Title of the box that chooses how X is filled in.</extracomment>
        <translation>X automática</translation>
    </message>
    <message id="AutoT">
        <source>Automatic angle</source>
        <extracomment>The same box for polar axes.</extracomment>
        <translation>Ángulo automático</translation>
    </message>
    <message id="EqualX">
        <source>In equal steps of X</source>
        <extracomment>The second choice for filling in X: initial value, then equal steps.</extracomment>
        <translation>En pasos iguales de X</translation>
    </message>
    <message id="EqualT">
        <source>In equal steps of angle</source>
        <extracomment>The same choice for polar axes.</extracomment>
        <translation>En pasos iguales de ángulo</translation>
    </message>
    <message id="SortByX">
        <source>Sort by X</source>
        <extracomment>Check box: keep the points of a series in order of X.</extracomment>
        <translation>Ordenar por X</translation>
    </message>
    <message id="SortByT">
        <source>Sort by angle</source>
        <extracomment>The same check box for polar axes.</extracomment>
        <translation>Ordenar por ángulo</translation>
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
        <translation>Mover los ejes</translation>
    </message>
    <message id="actionAxisReset">
        <source>Reset Axes</source>
        <extracomment>Name of the undoable placing of the anchors by command; follows Undo or Redo in the menu.</extracomment>
        <translation>Restablecer los ejes</translation>
    </message>
    <message id="axes.hint.none">
        <source>Drag an anchor, a side or the shaded area onto the axes of the chart</source>
        <extracomment>Status line on the axis page, pointer over nothing.</extracomment>
        <translation>Arrastre un ancla, un lado o el área sombreada hasta los ejes del gráfico</translation>
    </message>
    <message id="axes.hint.area">
        <source>Drag to move the whole frame</source>
        <extracomment>Status line: pointer over the enclosed area.</extracomment>
        <translation>Arrastre para mover todo el marco</translation>
    </message>
    <message id="axes.hint.parallel.origin">
        <source>Drag to move the corner where X and Y have their minimum</source>
        <extracomment>Status line: parallel axes, anchor 1.</extracomment>
        <translation>Arrastre para mover la esquina donde X e Y son mínimas</translation>
    </message>
    <message id="axes.hint.parallel.maxx">
        <source>Drag to move the X maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 2.</extracomment>
        <translation>Arrastre para mover el ancla del máximo de X</translation>
    </message>
    <message id="axes.hint.parallel.far">
        <source>Drag to move the corner opposite the origin</source>
        <extracomment>Status line: parallel axes, anchor 3.</extracomment>
        <translation>Arrastre para mover la esquina opuesta al origen</translation>
    </message>
    <message id="axes.hint.parallel.maxy">
        <source>Drag to move the Y maximum anchor</source>
        <extracomment>Status line: parallel axes, anchor 4.</extracomment>
        <translation>Arrastre para mover el ancla del máximo de Y</translation>
    </message>
    <message id="axes.hint.parallel.xaxis">
        <source>Drag to move the X axis</source>
        <extracomment>Status line: parallel axes, bottom side.</extracomment>
        <translation>Arrastre para mover el eje X</translation>
    </message>
    <message id="axes.hint.parallel.right">
        <source>Drag to move the side at the X maximum</source>
        <extracomment>Status line: parallel axes, right side.</extracomment>
        <translation>Arrastre para mover el lado del máximo de X</translation>
    </message>
    <message id="axes.hint.parallel.top">
        <source>Drag to move the side at the Y maximum</source>
        <extracomment>Status line: parallel axes, top side.</extracomment>
        <translation>Arrastre para mover el lado del máximo de Y</translation>
    </message>
    <message id="axes.hint.parallel.yaxis">
        <source>Drag to move the Y axis</source>
        <extracomment>Status line: parallel axes, left side.</extracomment>
        <translation>Arrastre para mover el eje Y</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomleft">
        <source>Drag to move the bottom left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 1.</extracomment>
        <translation>Arrastre para mover la esquina inferior izquierda</translation>
    </message>
    <message id="axes.hint.quadrangle.bottomright">
        <source>Drag to move the bottom right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 2.</extracomment>
        <translation>Arrastre para mover la esquina inferior derecha</translation>
    </message>
    <message id="axes.hint.quadrangle.topright">
        <source>Drag to move the top right corner</source>
        <extracomment>Status line: quadrangle axes, anchor 3.</extracomment>
        <translation>Arrastre para mover la esquina superior derecha</translation>
    </message>
    <message id="axes.hint.quadrangle.topleft">
        <source>Drag to move the top left corner</source>
        <extracomment>Status line: quadrangle axes, anchor 4.</extracomment>
        <translation>Arrastre para mover la esquina superior izquierda</translation>
    </message>
    <message id="axes.hint.quadrangle.bottom">
        <source>Drag to swing the bottom side</source>
        <extracomment>Status line: quadrangle axes, bottom side.</extracomment>
        <translation>Arrastre para inclinar el lado inferior</translation>
    </message>
    <message id="axes.hint.quadrangle.right">
        <source>Drag to swing the right side</source>
        <extracomment>Status line: quadrangle axes, right side.</extracomment>
        <translation>Arrastre para inclinar el lado derecho</translation>
    </message>
    <message id="axes.hint.quadrangle.top">
        <source>Drag to swing the top side</source>
        <extracomment>Status line: quadrangle axes, top side.</extracomment>
        <translation>Arrastre para inclinar el lado superior</translation>
    </message>
    <message id="axes.hint.quadrangle.left">
        <source>Drag to swing the left side</source>
        <extracomment>Status line: quadrangle axes, left side.</extracomment>
        <translation>Arrastre para inclinar el lado izquierdo</translation>
    </message>
    <message id="axes.hint.polar.none">
        <source>Drag the centre, a handle or the disc onto the axes of the chart</source>
        <extracomment>Status line on the axis page with polar axes, pointer over nothing.</extracomment>
        <translation>Arrastre el centro, un tirador o el disco hasta los ejes del gráfico</translation>
    </message>
    <message id="axes.hint.polar.area">
        <source>Drag to move the disc</source>
        <extracomment>Status line: polar axes, pointer inside the circle.</extracomment>
        <translation>Arrastre para mover el disco</translation>
    </message>
    <message id="axes.hint.polar.centre">
        <source>Drag to move the disc by its centre</source>
        <extracomment>Status line: polar axes, centre.</extracomment>
        <translation>Arrastre para mover el disco por su centro</translation>
    </message>
    <message id="axes.hint.polar.end">
        <source>Drag to move the end of the radius</source>
        <extracomment>Status line: polar axes, radius end.</extracomment>
        <translation>Arrastre para mover el extremo del radio</translation>
    </message>
    <message id="axes.hint.polar.swing">
        <source>Drag to turn and resize the disc by this corner</source>
        <extracomment>Status line: polar axes, a handle across the radius.</extracomment>
        <translation>Arrastre para girar y cambiar de tamaño el disco por esta esquina</translation>
    </message>
    <message id="axes.hint.polar.turn">
        <source>Drag to turn the radius</source>
        <extracomment>Status line: polar axes, a rotation handle.</extracomment>
        <translation>Arrastre para girar el radio</translation>
    </message>
    <message id="axes.hint.polar.size">
        <source>Drag to make the radius longer or shorter</source>
        <extracomment>Status line: polar axes, a size handle.</extracomment>
        <translation>Arrastre para alargar o acortar el radio</translation>
    </message>
    <message id="axes.part.frame">
        <source>Whole frame</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Marco entero</translation>
    </message>
    <message id="axes.part.origin">
        <source>Origin corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina del origen</translation>
    </message>
    <message id="axes.part.maxx">
        <source>X maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ancla del máximo de X</translation>
    </message>
    <message id="axes.part.far">
        <source>Corner opposite the origin</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina opuesta al origen</translation>
    </message>
    <message id="axes.part.maxy">
        <source>Y maximum anchor</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Ancla del máximo de Y</translation>
    </message>
    <message id="axes.part.xaxis">
        <source>X axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Eje X</translation>
    </message>
    <message id="axes.part.yaxis">
        <source>Y axis</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Eje Y</translation>
    </message>
    <message id="axes.part.bottomside">
        <source>Bottom side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Lado inferior</translation>
    </message>
    <message id="axes.part.rightside">
        <source>Right side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Lado derecho</translation>
    </message>
    <message id="axes.part.topside">
        <source>Top side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Lado superior</translation>
    </message>
    <message id="axes.part.leftside">
        <source>Left side</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Lado izquierdo</translation>
    </message>
    <message id="axes.part.bottomleft">
        <source>Bottom left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina inferior izquierda</translation>
    </message>
    <message id="axes.part.bottomright">
        <source>Bottom right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina inferior derecha</translation>
    </message>
    <message id="axes.part.topright">
        <source>Top right corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina superior derecha</translation>
    </message>
    <message id="axes.part.topleft">
        <source>Top left corner</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina superior izquierda</translation>
    </message>
    <message id="axes.part.centre">
        <source>Centre of the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Centro del disco</translation>
    </message>
    <message id="axes.part.end">
        <source>End of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Extremo del radio</translation>
    </message>
    <message id="axes.part.swing">
        <source>Corner that turns and resizes the disc</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Esquina que gira y cambia de tamaño el disco</translation>
    </message>
    <message id="axes.part.turn">
        <source>Handle that turns the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Tirador que gira el radio</translation>
    </message>
    <message id="axes.part.size">
        <source>Handle for the length of the radius</source>
        <extracomment>Name of a part of the axes that the arrow keys move.</extracomment>
        <translation>Tirador de la longitud del radio</translation>
    </message>
</context>
</TS>
