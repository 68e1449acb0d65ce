<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name></name>
    <message id="prefs.title">
        <source>Preferences</source>
        <extracomment>Title of the preferences window.</extracomment>
        <translation>Préférences</translation>
    </message>
    <message id="prefs.axes">
        <source>Axes and anchors</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Axes et ancres</translation>
    </message>
    <message id="prefs.axis.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Couleur :</translation>
    </message>
    <message id="prefs.color.tip">
        <source>Click to choose a colour and how opaque it is</source>
        <extracomment>Tool tip of every colour button.</extracomment>
        <translation>Cliquez pour choisir une couleur et son opacité</translation>
    </message>
    <message id="prefs.axis.color.name">
        <source>Axis colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>Couleur des axes</translation>
    </message>
    <message id="prefs.axis.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Épaisseur :</translation>
    </message>
    <message id="prefs.axis.thickness.tip">
        <source>How thick the axes are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>L’épaisseur du trait des axes</translation>
    </message>
    <message id="prefs.axis.thickness.name">
        <source>Axis thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Épaisseur des axes</translation>
    </message>
    <message id="prefs.unit.thickness">
        <source>1 – 5 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>1 – 5 points</translation>
    </message>
    <message id="prefs.axis.anchor">
        <source>Anchor size:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Taille des ancres :</translation>
    </message>
    <message id="prefs.axis.anchor.tip">
        <source>How large the squares at the ends of the axes are</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>La taille des carrés aux extrémités des axes</translation>
    </message>
    <message id="prefs.axis.anchor.name">
        <source>Anchor size</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Taille des ancres</translation>
    </message>
    <message id="prefs.unit.size">
        <source>3 – 15 points</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>3 – 15 points</translation>
    </message>
    <message id="prefs.guide">
        <source>Guide lines</source>
        <extracomment>Title of a group: the lines that follow the pointer.</extracomment>
        <translation>Lignes guides</translation>
    </message>
    <message id="prefs.guide.color">
        <source>Colour:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Couleur :</translation>
    </message>
    <message id="prefs.guide.color.name">
        <source>Guide colour</source>
        <extracomment>Accessible name of the colour button.</extracomment>
        <translation>Couleur des guides</translation>
    </message>
    <message id="prefs.guide.thickness">
        <source>Line thickness:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Épaisseur :</translation>
    </message>
    <message id="prefs.guide.thickness.tip">
        <source>How thick the lines that follow the pointer are drawn</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>L’épaisseur des lignes qui suivent le pointeur</translation>
    </message>
    <message id="prefs.guide.thickness.name">
        <source>Guide thickness</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Épaisseur des guides</translation>
    </message>
    <message id="prefs.guide.interval">
        <source>Follow the pointer every:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Suivre le pointeur toutes les :</translation>
    </message>
    <message id="prefs.guide.interval.tip">
        <source>How often guide and values follow the pointer: a shorter time is smoother, a longer one spares the battery</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>À quel rythme guides et valeurs suivent le pointeur : un temps court est plus fluide, un temps long ménage la batterie</translation>
    </message>
    <message id="prefs.guide.interval.name">
        <source>Guide interval</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Intervalle des guides</translation>
    </message>
    <message id="prefs.unit.interval">
        <source>0.01 – 0.2 s</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>0.01 – 0.2 s</translation>
    </message>
    <message id="prefs.pdf">
        <source>PDF pages</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Pages PDF</translation>
    </message>
    <message id="prefs.pdf.scale">
        <source>Read at:</source>
        <extracomment>Caption in the preferences window.</extracomment>
        <translation>Lire à :</translation>
    </message>
    <message id="prefs.pdf.scale.tip">
        <source>How large a PDF page becomes as a picture: a larger scale shows finer detail and needs more memory</source>
        <extracomment>Tool tip of the field.</extracomment>
        <translation>La taille d’une page PDF une fois devenue image : une plus grande échelle montre plus de détails et demande plus de mémoire</translation>
    </message>
    <message id="prefs.pdf.scale.name">
        <source>PDF reading scale</source>
        <extracomment>Accessible name of the field.</extracomment>
        <translation>Échelle de lecture des PDF</translation>
    </message>
    <message id="prefs.unit.percent">
        <source>100 – 800 %</source>
        <extracomment>Unit and limits of a field.</extracomment>
        <translation>100 – 800 %</translation>
    </message>
    <message id="prefs.export">
        <source>Data as text</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Données en texte</translation>
    </message>
    <message id="prefs.export.copy.tip">
        <source>Begin copied data with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>Commencer les données copiées par une ligne de titres</translation>
    </message>
    <message id="prefs.export.copy">
        <source>Titles when co&amp;pying</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>&amp;Titres à la copie</translation>
    </message>
    <message id="prefs.export.save.tip">
        <source>Begin saved text files with a line of titles</source>
        <extracomment>Tool tip of the check box.</extracomment>
        <translation>Commencer les fichiers texte enregistrés par une ligne de titres</translation>
    </message>
    <message id="prefs.export.save">
        <source>Titles when &amp;saving</source>
        <extracomment>Check box in the preferences window.</extracomment>
        <translation>Titres à l’&amp;enregistrement</translation>
    </message>
    <message id="prefs.markers">
        <source>Markers of the series</source>
        <extracomment>Title of a group.</extracomment>
        <translation>Marqueurs des séries</translation>
    </message>
    <message id="prefs.markers.color">
        <source>Colour</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Couleur</translation>
    </message>
    <message id="prefs.markers.shape">
        <source>Shape</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Forme</translation>
    </message>
    <message id="prefs.markers.size">
        <source>Size</source>
        <extracomment>Heading of a column.</extracomment>
        <translation>Taille</translation>
    </message>
    <message id="prefs.series.1">
        <source>Series 1</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 1</translation>
    </message>
    <message id="prefs.series.1.color">
        <source>Colour of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 1</translation>
    </message>
    <message id="prefs.series.1.shape">
        <source>Marker shape of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 1</translation>
    </message>
    <message id="prefs.markers.size.tip">
        <source>Size of the markers, 3 to 15 points</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Taille des marqueurs, de 3 à 15 points</translation>
    </message>
    <message id="prefs.series.1.size">
        <source>Marker size of series 1</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 1</translation>
    </message>
    <message id="prefs.series.2">
        <source>Series 2</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 2</translation>
    </message>
    <message id="prefs.series.2.color">
        <source>Colour of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 2</translation>
    </message>
    <message id="prefs.series.2.shape">
        <source>Marker shape of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 2</translation>
    </message>
    <message id="prefs.series.2.size">
        <source>Marker size of series 2</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 2</translation>
    </message>
    <message id="prefs.series.3">
        <source>Series 3</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 3</translation>
    </message>
    <message id="prefs.series.3.color">
        <source>Colour of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 3</translation>
    </message>
    <message id="prefs.series.3.shape">
        <source>Marker shape of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 3</translation>
    </message>
    <message id="prefs.series.3.size">
        <source>Marker size of series 3</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 3</translation>
    </message>
    <message id="prefs.series.4">
        <source>Series 4</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 4</translation>
    </message>
    <message id="prefs.series.4.color">
        <source>Colour of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 4</translation>
    </message>
    <message id="prefs.series.4.shape">
        <source>Marker shape of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 4</translation>
    </message>
    <message id="prefs.series.4.size">
        <source>Marker size of series 4</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 4</translation>
    </message>
    <message id="prefs.series.5">
        <source>Series 5</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 5</translation>
    </message>
    <message id="prefs.series.5.color">
        <source>Colour of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 5</translation>
    </message>
    <message id="prefs.series.5.shape">
        <source>Marker shape of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 5</translation>
    </message>
    <message id="prefs.series.5.size">
        <source>Marker size of series 5</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 5</translation>
    </message>
    <message id="prefs.series.6">
        <source>Series 6</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 6</translation>
    </message>
    <message id="prefs.series.6.color">
        <source>Colour of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 6</translation>
    </message>
    <message id="prefs.series.6.shape">
        <source>Marker shape of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 6</translation>
    </message>
    <message id="prefs.series.6.size">
        <source>Marker size of series 6</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 6</translation>
    </message>
    <message id="prefs.series.7">
        <source>Series 7</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 7</translation>
    </message>
    <message id="prefs.series.7.color">
        <source>Colour of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 7</translation>
    </message>
    <message id="prefs.series.7.shape">
        <source>Marker shape of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 7</translation>
    </message>
    <message id="prefs.series.7.size">
        <source>Marker size of series 7</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 7</translation>
    </message>
    <message id="prefs.series.8">
        <source>Series 8</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 8</translation>
    </message>
    <message id="prefs.series.8.color">
        <source>Colour of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 8</translation>
    </message>
    <message id="prefs.series.8.shape">
        <source>Marker shape of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 8</translation>
    </message>
    <message id="prefs.series.8.size">
        <source>Marker size of series 8</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 8</translation>
    </message>
    <message id="prefs.series.9">
        <source>Series 9</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 9</translation>
    </message>
    <message id="prefs.series.9.color">
        <source>Colour of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 9</translation>
    </message>
    <message id="prefs.series.9.shape">
        <source>Marker shape of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 9</translation>
    </message>
    <message id="prefs.series.9.size">
        <source>Marker size of series 9</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 9</translation>
    </message>
    <message id="prefs.series.10">
        <source>Series 10</source>
        <extracomment>Caption of a row.</extracomment>
        <translation>Série 10</translation>
    </message>
    <message id="prefs.series.10.color">
        <source>Colour of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Couleur de la série 10</translation>
    </message>
    <message id="prefs.series.10.shape">
        <source>Marker shape of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Forme des marqueurs de la série 10</translation>
    </message>
    <message id="prefs.series.10.size">
        <source>Marker size of series 10</source>
        <extracomment>Accessible name.</extracomment>
        <translation>Taille des marqueurs de la série 10</translation>
    </message>
    <message id="prefs.markers.size.unit">
        <source>Sizes are 3 to 15 points on the screen.</source>
        <extracomment>Note below the ten rows.</extracomment>
        <translation>Les tailles sont de 3 à 15 points à l’écran.</translation>
    </message>
    <message id="prefs.help">
        <source>&amp;Help</source>
        <extracomment>Button.</extracomment>
        <translation>&amp;Aide</translation>
    </message>
    <message id="prefs.help.tip">
        <source>Explain the preferences</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Expliquer les préférences</translation>
    </message>
    <message id="prefs.factory">
        <source>&amp;Factory Settings</source>
        <extracomment>Button.</extracomment>
        <translation>Réglages d’&amp;origine</translation>
    </message>
    <message id="prefs.factory.tip">
        <source>Show the settings that the program came with; nothing is stored until OK</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Montrer les réglages d’origine du programme ; rien n’est enregistré avant OK</translation>
    </message>
    <message id="prefs.cancel.tip">
        <source>Close and leave every setting as it was</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Fermer et laisser chaque réglage tel qu’il était</translation>
    </message>
    <message id="prefs.ok.tip">
        <source>Store the settings and show them in every window</source>
        <extracomment>Tool tip.</extracomment>
        <translation>Enregistrer les réglages et les montrer dans toutes les fenêtres</translation>
    </message>
    <message id="prefs.color.value">
        <source>%1, opacity %2 %</source>
        <extracomment>What a colour button tells screen readers: the colour in hexadecimal (%1), its opacity in percent (%2).</extracomment>
        <translation>%1, opacité %2 %</translation>
    </message>
    <message id="prefs.shape.0">
        <source>Filled square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Carré plein</translation>
    </message>
    <message id="prefs.shape.1">
        <source>Open square</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Carré vide</translation>
    </message>
    <message id="prefs.shape.2">
        <source>Filled circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Cercle plein</translation>
    </message>
    <message id="prefs.shape.3">
        <source>Open circle</source>
        <extracomment>Marker shape.</extracomment>
        <translation>Cercle vide</translation>
    </message>
    <message id="prefs.color.title">
        <source>Choose a colour</source>
        <extracomment>Title of the colour chooser.</extracomment>
        <translation>Choisir une couleur</translation>
    </message>
</context>
</TS>
