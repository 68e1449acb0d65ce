<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>The button that closes a message.</extracomment>
        <translation>确定</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <extracomment>The button that gives up a question without doing anything.</extracomment>
        <translation>取消</translation>
    </message>
    <message id="platform.files.pictures">
        <source>Pictures</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>图片</translation>
    </message>
    <message id="platform.files.all">
        <source>All files</source>
        <extracomment>Kind of file in the open panel.</extracomment>
        <translation>所有文件</translation>
    </message>
    <message id="platform.files.openPicture">
        <source>Open Picture</source>
        <extracomment>Title of the panel that asks for a picture file.</extracomment>
        <translation>打开图片</translation>
    </message>
    <message id="platform.files.overwrite">
        <source>“%1” already exists. Replace it?</source>
        <extracomment>Question before a file is overwritten; %1 is its name.</extracomment>
        <translation>“%1”已存在。要替换吗？</translation>
    </message>
    <message id="platform.files.overwriteHint">
        <source>Replacing it overwrites what it holds now. Cancel to choose another name.</source>
        <extracomment>Explanation of the question before a file is overwritten.</extracomment>
        <translation>替换将覆盖其现有内容。取消可选择其他名称。</translation>
    </message>
    <message id="platform.files.replace">
        <source>Replace</source>
        <extracomment>The button that overwrites a file.</extracomment>
        <translation>替换</translation>
    </message>
    <message id="platform.password.field">
        <source>&amp;Password:</source>
        <extracomment>Label of the field into which the password of a file is typed.</extracomment>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message id="platform.password.open">
        <source>&amp;Open</source>
        <extracomment>The button that opens the locked file.</extracomment>
        <translation>打开(&amp;O)</translation>
    </message>
    <message id="platform.files.saveDocument">
        <source>Save the document</source>
        <translation>保存文档</translation>
    </message>
    <message id="platform.files.openFiles">
        <source>Open documents and pictures</source>
        <translation>打开文档和图片</translation>
    </message>
    <message id="platform.files.documents">
        <source>Curvegrab X documents</source>
        <translation>Curvegrab X 文档</translation>
    </message>
    <message id="platform.files.documentsAndPictures">
        <source>Documents and pictures</source>
        <translation>文档和图片</translation>
    </message>
    <message id="platform.file.diskFull">
        <source>The disk is full. Make room on it, or save to another one.</source>
        <translation>磁盘已满。请腾出空间，或保存到其他磁盘。</translation>
    </message>
    <message id="platform.file.tooLarge">
        <source>The file would be larger than this disk allows. Save it to another one.</source>
        <translation>文件会超出此磁盘允许的大小。请保存到其他磁盘。</translation>
    </message>
    <message id="platform.file.folderGone">
        <source>The folder is not there any more. Connect its disk again, or save to another folder.</source>
        <translation>文件夹已不存在。请重新连接其磁盘，或保存到其他文件夹。</translation>
    </message>
    <message id="platform.file.isFolder">
        <source>There is a folder of that name. Choose another name.</source>
        <translation>已有同名的文件夹。请选择其他名称。</translation>
    </message>
    <message id="platform.file.readOnly">
        <source>The file is protected from changes. Save under another name, or allow changes to it.</source>
        <translation>文件受到保护，不能更改。请以其他名称保存，或允许更改。</translation>
    </message>
    <message id="platform.file.folderReadOnly">
        <source>You may not write into this folder. Save to another one.</source>
        <translation>您不能写入此文件夹。请保存到其他文件夹。</translation>
    </message>
</context>
</TS>
