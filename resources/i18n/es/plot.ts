<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name></name>
    <message id="plot.window.title">
        <source>%1 – Result</source>
        <extracomment>Title of the plot window; %1 is the name of the document.</extracomment>
        <translation>%1 – Resultado</translation>
    </message>
    <message id="plot.view.name">
        <source>Plot of the captured points</source>
        <extracomment>Accessible name of the plot.</extracomment>
        <translation>Gráfico de los puntos capturados</translation>
    </message>
    <message id="plot.save">
        <source>&amp;Save Picture…</source>
        <extracomment>Button below the plot.</extracomment>
        <translation>&amp;Guardar la imagen…</translation>
    </message>
    <message id="plot.save.tip">
        <source>Save the plot as an SVG, PDF or PNG file</source>
        <extracomment>Tool tip of the button.</extracomment>
        <translation>Guardar el gráfico en un archivo SVG, PDF o PNG</translation>
    </message>
    <message id="plot.save.message">
        <source>Save the plot</source>
        <extracomment>Title of the save panel.</extracomment>
        <translation>Guardar el gráfico</translation>
    </message>
    <message id="plot.format.svg">
        <source>SVG drawing</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Dibujo SVG</translation>
    </message>
    <message id="plot.format.pdf">
        <source>PDF document</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Documento PDF</translation>
    </message>
    <message id="plot.format.png">
        <source>PNG picture</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Imagen PNG</translation>
    </message>
    <message id="plot.empty">
        <source>No points have been captured yet.</source>
        <extracomment>Below an empty plot.</extracomment>
        <translation>Todavía no se ha capturado ningún punto.</translation>
    </message>
    <message id="plot.leftOut">
        <source>Points that have no place on these axes: %d</source>
        <extracomment>Below the plot; %d is their number. Such points are not above zero on a logarithmic axis, or no numbers.</extracomment>
        <translation>Puntos sin lugar en estos ejes: %d</translation>
    </message>
    <message id="plot.missing">
        <source>Plots cannot be shown because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>In place of the plot; %1 is a folder.</extracomment>
        <translation>No se puede mostrar el gráfico porque falta una parte de Curvegrab X. Vuelva a instalar el programa. Esa parte debe estar en %1.</translation>
    </message>
    <message id="plot.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of a message; %1 is the name of a file.</extracomment>
        <translation>No se ha podido guardar «%1»</translation>
    </message>
    <message id="plot.noMemory">
        <source>There is not enough memory for a picture of this size. Make the window smaller, and try again.</source>
        <extracomment>Explanation of a message.</extracomment>
        <translation>No hay memoria suficiente para una imagen de este tamaño. Reduzca la ventana e inténtelo de nuevo.</translation>
    </message>
</context>
</TS>
