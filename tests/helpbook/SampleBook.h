#pragma once

#include "helpbook/HelpBook.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A small book in a folder of its own.
class SampleBook
{
public:
    SampleBook()
    {
        write("contents.txt", "one.html\ntwo.html\nnotes.md\n");
        write("one.html", "<html><head><title>First page</title></head><body>"
                          "<p>A whale, a Whale and a walrus. <a href=\"two.html#deep\">On</a></p>"
                          "<p>Press {key:zoomIn} or {key:nothing}.</p></body></html>");
        QByteArray longText;
        for (int i = 0; i < 200; ++i)
            longText += "<p>Line of text</p>";
        write("two.html", "<html><head><title>Second page</title></head><body>" + longText +
                              "<p><a name=\"deep\"></a>Here it is deep.</p>" + longText +
                              "</body></html>");
        write("notes.md", "# Notes\n\nText.\n");
    }

    [[nodiscard]] HelpBook book() const
    {
        return HelpBook(m_folder.path(), [](const QString &command) {
            return command == u"zoomIn" ? QStringLiteral("Ctrl+<") : QString();
        });
    }

    [[nodiscard]] QString folder() const { return m_folder.path(); }

private:
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << "cannot write " << qPrintable(name);
    }

    QTemporaryDir m_folder;
};
