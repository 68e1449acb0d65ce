<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name></name>
    <message id="plot.window.title">
        <source>%1 – Result</source>
        <extracomment>Title of the plot window; %1 is the name of the document.</extracomment>
        <translation>%1 – Ergebnis</translation>
    </message>
    <message id="plot.view.name">
        <source>Plot of the captured points</source>
        <extracomment>Accessible name of the plot.</extracomment>
        <translation>Diagramm der erfassten Punkte</translation>
    </message>
    <message id="plot.save">
        <source>&amp;Save Picture…</source>
        <extracomment>Button below the plot.</extracomment>
        <translation>Bild &amp;speichern…</translation>
    </message>
    <message id="plot.save.tip">
        <source>Save the plot as an SVG, PDF or PNG file</source>
        <extracomment>Tool tip of the button.</extracomment>
        <translation>Das Diagramm als SVG-, PDF- oder PNG-Datei speichern</translation>
    </message>
    <message id="plot.save.message">
        <source>Save the plot</source>
        <extracomment>Title of the save panel.</extracomment>
        <translation>Das Diagramm speichern</translation>
    </message>
    <message id="plot.format.svg">
        <source>SVG drawing</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>SVG-Zeichnung</translation>
    </message>
    <message id="plot.format.pdf">
        <source>PDF document</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PDF-Dokument</translation>
    </message>
    <message id="plot.format.png">
        <source>PNG picture</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>PNG-Bild</translation>
    </message>
    <message id="plot.empty">
        <source>No points have been captured yet.</source>
        <extracomment>Below an empty plot.</extracomment>
        <translation>Es sind noch keine Punkte erfasst.</translation>
    </message>
    <message id="plot.leftOut">
        <source>Points that have no place on these axes: %d</source>
        <extracomment>Below the plot; %d is their number. Such points are not above zero on a logarithmic axis, or no numbers.</extracomment>
        <translation>Punkte, die auf diesen Achsen keinen Platz haben: %d</translation>
    </message>
    <message id="plot.missing">
        <source>Plots cannot be shown because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>In place of the plot; %1 is a folder.</extracomment>
        <translation>Das Diagramm kann nicht angezeigt werden, weil ein Teil von Curvegrab X fehlt. Bitte installieren Sie das Programm neu. Der Teil gehört in %1.</translation>
    </message>
    <message id="plot.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of a message; %1 is the name of a file.</extracomment>
        <translation>„%1“ konnte nicht gespeichert werden</translation>
    </message>
    <message id="plot.noMemory">
        <source>There is not enough memory for a picture of this size. Make the window smaller, and try again.</source>
        <extracomment>Explanation of a message.</extracomment>
        <translation>Für ein Bild dieser Größe reicht der Speicher nicht. Verkleinern Sie das Fenster und versuchen Sie es noch einmal.</translation>
    </message>
</context>
</TS>
