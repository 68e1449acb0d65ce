#include "capture/DataSeries.h"
#include "endurance/Endurance.h"
#include "endurance/RandomUser.h"
#include "endurance/ReopenedDocument.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

#include <sys/resource.h>

// Documents that the program wrote, damaged by chance, are read to the end or refused: without a
// crash, without a hang, and in bounded memory.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

constexpr qint64 patience = 60'000;       // milliseconds for one document, on a busy machine
constexpr long mostMemory = 1024L * 1024; // kilobytes
constexpr QSize twelveMegapixels{4000, 3000};

/// Damages a document a little, in ways in which disks, networks and hands do.
class Mutations
{
public:
    explicit Mutations(unsigned seed)
        : m_dice(seed)
    {}

    [[nodiscard]] QByteArray of(QByteArray document)
    {
        const qsizetype count = 1 + below(3);
        for (qsizetype i = 0; i < count; ++i)
            mutate(document);
        return document;
    }

private:
    using Mutation = void (Mutations::*)(QByteArray &);

    [[nodiscard]] qsizetype below(qsizetype limit)
    {
        return std::uniform_int_distribution<qsizetype>(0, limit - 1)(m_dice);
    }

    void mutate(QByteArray &document)
    {
        static constexpr std::array<Mutation, 8> mutations{
            &Mutations::flipBits,  &Mutations::flipBits,    &Mutations::flipBits,
            &Mutations::truncate,  &Mutations::swapPieces,  &Mutations::repeatPiece,
            &Mutations::overwrite, &Mutations::takePieceOut};
        if (document.isEmpty())
            return;
        (this->*mutations.at(static_cast<std::size_t>(below(mutations.size()))))(document);
    }

    /// Near the beginning and the end, where a document has its structure, as often as anywhere.
    [[nodiscard]] qsizetype place(const QByteArray &document)
    {
        const qsizetype near = std::min<qsizetype>(1500, document.size());
        switch (below(3)) {
        case 0:
            return below(near);
        case 1:
            return document.size() - 1 - below(near);
        default:
            return below(document.size());
        }
    }

    [[nodiscard]] qsizetype length(const QByteArray &document, qsizetype from)
    {
        const qsizetype most = below(4) == 0 ? document.size() : 64;
        return std::min(1 + below(most), document.size() - from);
    }

    void flipBits(QByteArray &document)
    {
        for (qsizetype flips = 1 + below(8); flips > 0; --flips) {
            char &byte = document[place(document)];
            byte = static_cast<char>(byte ^ (1 << below(8)));
        }
    }

    void truncate(QByteArray &document) { document.truncate(place(document)); }

    void swapPieces(QByteArray &document)
    {
        std::array<qsizetype, 3> places{place(document), place(document), place(document)};
        std::sort(places.begin(), places.end());
        std::rotate(document.begin() + places[0], document.begin() + places[1],
                    document.begin() + places[2]);
    }

    void repeatPiece(QByteArray &document)
    {
        const qsizetype from = place(document);
        document.insert(place(document), document.mid(from, length(document, from)));
    }

    void overwrite(QByteArray &document)
    {
        const qsizetype from = place(document);
        const qsizetype count = length(document, from);
        const bool withZeros = below(2) == 0;
        for (qsizetype i = from; i < from + count; ++i)
            document[i] = withZeros ? '\0' : static_cast<char>(below(256));
    }

    void takePieceOut(QByteArray &document)
    {
        const qsizetype from = place(document);
        document.remove(from, length(document, from));
    }

    std::mt19937 m_dice;
};

QByteArray ofAUser(unsigned seed)
{
    RandomUser user(seed);
    for (int action = 0; action < 100; ++action)
        user.act();
    return user.document().dataOfType({}).value_or(QByteArray());
}

QByteArray example()
{
    QFile file(QStringLiteral(CURVEGRAB_EXAMPLES "/damped-oscillation.crvgrab"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<QByteArray> smallDocuments()
{
    const TestDocument empty{QSize(0, 0)};
    return {*empty.document->dataOfType({}), example(), ofAUser(3), ofAUser(5), ofAUser(6)};
}

/// A drawing on paper that is not quite white, as a scanner sees it.
QImage scan(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgb(250 - x * y % 5, 250 - (x + y) % 3, 245);
    }
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, 6));
    for (int x = 200; x < size.width(); x += 400)
        painter.drawLine(x, 200, size.width() - x, size.height() - 200);
    return image;
}

QByteArray largeDocument()
{
    TestDocument test;
    test.document->graphView().replaceImageWithImageRep(scan(twelveMegapixels));
    test.endEvent();
    test.digitize();
    test.click(120, 100);
    test.click(200, 150);
    return test.document->dataOfType({}).value_or(QByteArray());
}

/// Reads what is in the bytes, its picture too, and writes and reads what was whole.
void read(const QByteArray &bytes)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                     static_cast<std::size_t>(bytes.size())),
              0);
    EXPECT_LT(timer.elapsed(), patience);
}

/// Shows what is in the bytes, or what is left of it, in a window; saves it.
void show(const QByteArray &bytes)
{
    TestServices services;
    MyDocument document(services);
    if (!document.loadDataRepresentation(bytes, QLatin1String(documenttypes::curvegrabDocument))) {
        if (!documentarchive::offersSomething(document.refusedReading().root))
            return;
        document.loadRemains(document.refusedReading().root);
    }
    document.showWindow();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&document.window()));
    QCoreApplication::processEvents();
    const std::optional<QByteArray> saved = document.dataOfType({});
    ASSERT_TRUE(saved.has_value());
    EXPECT_TRUE(documentarchive::unarchived(*saved).isWhole());
}

void expectBoundedMemory()
{
    rusage usage{};
    ASSERT_EQ(getrusage(RUSAGE_SELF, &usage), 0);
    EXPECT_LT(usage.ru_maxrss, mostMemory);
    testing::Test::RecordProperty("kilobytes", static_cast<int>(usage.ru_maxrss));
}

} // namespace

TEST(MutatedDocuments, areReadToTheEndOrRefused)
{
    const std::vector<QByteArray> documents = smallDocuments();
    Mutations mutations(1);
    const int count = endurance::times(500);
    for (int i = 0; i < count; ++i) {
        const QByteArray &document = documents.at(static_cast<std::size_t>(i) % documents.size());
        ASSERT_FALSE(document.isEmpty());
        ASSERT_NO_FATAL_FAILURE(read(mutations.of(document))) << i;
    }
    expectBoundedMemory();
}

TEST(MutatedDocuments, areShownAsFarAsTheyCanBeRead)
{
    const std::vector<QByteArray> documents = smallDocuments();
    Mutations mutations(2);
    const int count = endurance::times(25);
    for (int i = 0; i < count; ++i) {
        const QByteArray &document = documents.at(static_cast<std::size_t>(i) % documents.size());
        ASSERT_NO_FATAL_FAILURE(show(mutations.of(document))) << i;
    }
    expectBoundedMemory();
}

TEST(MutatedDocuments, ofTwelveMegapixelsAreReadInBoundedMemory)
{
    const QByteArray document = largeDocument();
    read(document);
    Mutations mutations(3);
    const int count = endurance::times(5);
    for (int i = 0; i < count; ++i) {
        const QByteArray mutated = mutations.of(document);
        ASSERT_NO_FATAL_FAILURE(read(mutated)) << i;
        if (i % 5 == 0) {
            ASSERT_NO_FATAL_FAILURE(show(mutated)) << i;
        }
    }
    expectBoundedMemory();
}
