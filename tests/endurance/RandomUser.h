#pragma once

#include "document/TestDocument.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <random>

/// A user without a plan, at a document of her own. The same seed does the same.
class RandomUser
{
public:
    explicit RandomUser(unsigned seed);

    [[nodiscard]] TestDocument &test() { return m_test; }
    [[nodiscard]] MyDocument &document() { return *m_test.document; }

    /// One thing that a user does, until the sheets that it brings up are answered.
    void act();

    /// How often the document was saved, was shown again from its file, took another picture.
    [[nodiscard]] int saves() const { return m_saves; }
    [[nodiscard]] int reverts() const { return m_reverts; }
    [[nodiscard]] int newPictures() const { return m_newPictures; }

private:
    [[nodiscard]] std::size_t below(std::size_t limit) { return m_random() % limit; }
    [[nodiscard]] int number(int low, int high);
    [[nodiscard]] QPoint somewhere();
    [[nodiscard]] Qt::KeyboardModifiers heldKeys();

    void clickOn(QWidget *button);
    void clickThePicture();
    void dragOnThePicture();
    void dragAnAnchor();
    void dragFrom(QPoint begin, Qt::KeyboardModifiers keys);
    void rest();
    void changePage();
    void giveACommand();
    void undoOrRedo();
    void choose();
    void check();
    void turnTheAngle();
    void typeAValue();
    void selectInTheTable();
    void deleteASeries();
    void changeTheTable();
    void changeTheWindow();
    void pressAKey();
    void pasteAPicture();
    void openAPicture();
    void save();
    void revert();
    void answerSheets();

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    TestDocument m_test;
    int m_saves = 0;
    int m_reverts = 0;
    int m_newPictures = 0;
};
