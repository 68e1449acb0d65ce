#pragma once

#include "document/DocumentTypes.h"
#include "document/TestDocument.h"

#include <QByteArray>

#include <gtest/gtest.h>

/// A document whose window shows what a document file has.
class ReopenedDocument
{
public:
    ReopenedDocument(const QByteArray &file, TestServices &services)
        : document(services)
    {
        isWhole =
            document.loadDataRepresentation(file, QLatin1String(documenttypes::curvegrabDocument));
        document.showWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&document.window()));
        QCoreApplication::processEvents();
        document.undoManager().closeGroup();
    }

    /// What a save writes.
    [[nodiscard]] QByteArray saved() const
    {
        return document.dataOfType(QLatin1String(documenttypes::curvegrabDocument))
            .value_or(QByteArray());
    }

    MyDocument document;
    bool isWhole = false;
};
