<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="AxisChanged">
        <source>The axes have changed</source>
        <extracomment>Title of the message shown when a point was taken under other axes than the current series.</extracomment>
        <translation>Les axes ont changé</translation>
    </message>
    <message id="NextSeriesUsed">
        <source>The current series was begun with other axes, so the new point went into series %d, which was empty. Go on clicking there.</source>
        <extracomment>%d is the number of the series, counted from 1.</extracomment>
        <translation>La série actuelle a été commencée avec d’autres axes ; le nouveau point est donc allé dans la série %d, qui était vide. Continuez à cliquer là.</translation>
    </message>
    <message id="SeriesIsFull">
        <source>The current series was begun with other axes, and no series is empty, so the point was not added. Save your data, then delete a series that you no longer need.</source>
        <extracomment>Shown when no series is left for a point.</extracomment>
        <translation>La série actuelle a été commencée avec d’autres axes et aucune série n’est vide ; le point n’a donc pas été ajouté. Enregistrez vos données, puis effacez une série dont vous n’avez plus besoin.</translation>
    </message>
    <message id="actionDataAppend">
        <source>Add Point</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Ajouter un point</translation>
    </message>
    <message id="actionDataDelete">
        <source>Delete Series Data</source>
        <extracomment>Name of the action in "Undo …" and "Redo …".</extracomment>
        <translation>Effacer les données de la série</translation>
    </message>
    <message id="SaveAllMessage">
        <source>Save all series</source>
        <extracomment>What the save panel says when all series are saved.</extracomment>
        <translation>Enregistrer toutes les séries</translation>
    </message>
    <message id="SaveSelectionMessage">
        <source>Save the selected series</source>
        <extracomment>What the save panel says when the series selected in the table are saved.</extracomment>
        <translation>Enregistrer les séries sélectionnées</translation>
    </message>
    <message id="capture.export.failed">
        <source>“%1” could not be saved</source>
        <extracomment>Title of the message after a failed save; %1 is the file's name.</extracomment>
        <translation>« %1 » n’a pas pu être enregistré</translation>
    </message>
</context>
</TS>
