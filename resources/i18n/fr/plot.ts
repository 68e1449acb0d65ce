<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="plot.window.title">
        <source>%1 – Result</source>
        <extracomment>Title of the plot window; %1 is the name of the document.</extracomment>
        <translation>%1 – Résultat</translation>
    </message>
    <message id="plot.view.name">
        <source>Plot of the captured points</source>
        <extracomment>Accessible name of the plot.</extracomment>
        <translation>Tracé des points relevés</translation>
    </message>
    <message id="plot.save">
        <source>&amp;Save Picture…</source>
        <extracomment>Button below the plot.</extracomment>
        <translation>Enregi&amp;strer l’image…</translation>
    </message>
    <message id="plot.save.tip">
        <source>Save the plot as an SVG, PDF or PNG file</source>
        <extracomment>Tool tip of the button.</extracomment>
        <translation>Enregistrer le tracé dans un fichier SVG, PDF ou PNG</translation>
    </message>
    <message id="plot.save.message">
        <source>Save the plot</source>
        <extracomment>Title of the save panel.</extracomment>
        <translation>Enregistrer le tracé</translation>
    </message>
    <message id="plot.format.svg">
        <source>SVG drawing</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Dessin SVG</translation>
    </message>
    <message id="plot.format.pdf">
        <source>PDF document</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Document PDF</translation>
    </message>
    <message id="plot.format.png">
        <source>PNG picture</source>
        <extracomment>A kind of file in the save panel.</extracomment>
        <translation>Image PNG</translation>
    </message>
    <message id="plot.empty">
        <source>No points have been captured yet.</source>
        <extracomment>Below an empty plot.</extracomment>
        <translation>Aucun point n’a encore été relevé.</translation>
    </message>
    <message id="plot.leftOut">
        <source>Points that have no place on these axes: %d</source>
        <extracomment>Below the plot; %d is their number. Such points are not above zero on a logarithmic axis, or no numbers.</extracomment>
        <translation>Points sans place sur ces axes : %d</translation>
    </message>
    <message id="plot.missing">
        <source>Plots cannot be shown because a part of Curvegrab X is missing. Please install the program again. The part belongs in %1.</source>
        <extracomment>In place of the plot; %1 is a folder.</extracomment>
        <translation>Le tracé ne peut pas être affiché, car une partie de Curvegrab X manque. Veuillez réinstaller le programme. Cette partie doit se trouver dans %1.</translation>
    </message>
    <message id="plot.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of a message; %1 is the name of a file.</extracomment>
        <translation>« %1 » n’a pas pu être enregistré</translation>
    </message>
    <message id="plot.noMemory">
        <source>There is not enough memory for a picture of this size. Make the window smaller, and try again.</source>
        <extracomment>Explanation of a message.</extracomment>
        <translation>La mémoire ne suffit pas pour une image de cette taille. Réduisez la fenêtre et réessayez.</translation>
    </message>
</context>
</TS>
