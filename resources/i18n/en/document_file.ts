<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="document.damage.noDocument">
        <source>This is not a Curvegrab X document.</source>
        <translation>This is not a Curvegrab X document.</translation>
    </message>
    <message id="document.damage.endsEarly">
        <source>The file ends too early: something is missing at its end.</source>
        <translation>The file ends too early: something is missing at its end.</translation>
    </message>
    <message id="document.damage.tooLarge">
        <source>Something in the file (%1) is far larger than any document has it.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is far larger than any document has it.</translation>
    </message>
    <message id="document.damage.repeatedKey">
        <source>Something in the file (%1) is there twice.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is there twice.</translation>
    </message>
    <message id="document.damage.badValue">
        <source>Something in the file (%1) is damaged.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) is damaged.</translation>
    </message>
    <message id="document.damage.trailing">
        <source>Something that does not belong to the document follows its end.</source>
        <translation>Something that does not belong to the document follows its end.</translation>
    </message>
    <message id="document.damage.picture">
        <source>The picture is damaged and cannot be shown.</source>
        <translation>The picture is damaged and cannot be shown.</translation>
    </message>
    <message id="document.damage.unreadable">
        <source>Something in the file (%1) cannot be read.</source>
        <extracomment>%1 is what is damaged: "the picture", "the axes" …</extracomment>
        <translation>Something in the file (%1) cannot be read.</translation>
    </message>
    <message id="document.part.picture">
        <source>the picture</source>
        <translation>the picture</translation>
    </message>
    <message id="document.part.table">
        <source>the data table</source>
        <translation>the data table</translation>
    </message>
    <message id="document.part.axes">
        <source>the axes</source>
        <translation>the axes</translation>
    </message>
    <message id="document.part.guide">
        <source>the cursor guide</source>
        <translation>the cursor guide</translation>
    </message>
    <message id="document.part.series">
        <source>the data series</source>
        <translation>the data series</translation>
    </message>
    <message id="document.part.window">
        <source>the window</source>
        <translation>the window</translation>
    </message>
    <message id="document.part.file">
        <source>the whole file</source>
        <translation>the whole file</translation>
    </message>
</context>
</TS>
