// Installs what was built into a folder of its own and looks at it as a desktop does.
#include "document/DocumentTypes.h"
#include "document/ExampleDocuments.h"
#include "exchange/SpreadsheetWriter.h"
#include "imageview/PdfLibrary.h"
#include "platform/Modules.h"
#include "plot/PlotView.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMap>
#include <QMimeDatabase>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr int patience = 120'000; // milliseconds

struct Result
{
    int exitCode = -1;
    QString out;
};

/// Standard output and standard error come together.
Result run(const QString &program, const QStringList &arguments,
           const QMap<QString, QString> &variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8")); // what tools say
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

/// One installation serves all tests; they do not change it.
class Install : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_root = std::make_unique<QTemporaryDir>();
        s_installing = run(QStringLiteral(CURVEGRAB_CMAKE),
                           {QStringLiteral("--install"), QStringLiteral(CURVEGRAB_BUILD),
                            QStringLiteral("--prefix"), QStringLiteral("/usr")},
                           {{QStringLiteral("DESTDIR"), s_root->path()}});
    }

    static void TearDownTestSuite() { s_root.reset(); }

    void SetUp() override { ASSERT_EQ(s_installing.exitCode, 0) << qPrintable(s_installing.out); }

    static QString prefix() { return s_root->filePath(QStringLiteral("usr")); }
    static QString program()
    {
        return prefix() + QStringLiteral("/" CURVEGRAB_BINDIR "/curvegrab");
    }
    static QString data(const QString &path)
    {
        return prefix() + QStringLiteral("/" CURVEGRAB_DATADIR "/") + path;
    }
    static QString desktopEntry()
    {
        return data(QStringLiteral("applications/" CURVEGRAB_DESKTOP_ID ".desktop"));
    }

    static QStringList installedFiles()
    {
        QStringList files;
        QDirIterator iterator(prefix(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (iterator.hasNext())
            files += QDir(prefix()).relativeFilePath(iterator.next());
        files.sort();
        return files;
    }

    static QMap<QString, QString> privateSettings()
    {
        return {{QStringLiteral("XDG_CONFIG_HOME"), s_root->filePath(QStringLiteral("config"))},
                {QStringLiteral("DISPLAY"), QString()},
                {QStringLiteral("WAYLAND_DISPLAY"), QString()}};
    }

private:
    static std::unique_ptr<QTemporaryDir> s_root;
    static Result s_installing;
};

std::unique_ptr<QTemporaryDir> Install::s_root;
Result Install::s_installing;

const QList<int> &iconSizes()
{
    static const QList<int> sizes{16, 22, 24, 32, 48, 64, 128, 256, 512};
    return sizes;
}

QString iconPath(int size, const char *name)
{
    return QStringLiteral("icons/hicolor/%1x%1/%2.png").arg(size).arg(QLatin1String(name));
}

} // namespace

TEST_F(Install, putsEveryFileWhereItBelongsAndNoOther)
{
    const QString share = QStringLiteral(CURVEGRAB_DATADIR "/");
    QStringList expected{QStringLiteral(CURVEGRAB_BINDIR "/curvegrab"),
                         QStringLiteral(CURVEGRAB_LIBDIR "/curvegrab/curvegrabpdf.so"),
                         QStringLiteral(CURVEGRAB_LIBDIR "/curvegrab/curvegrabplot.so"),
                         QStringLiteral(CURVEGRAB_LIBDIR "/curvegrab/curvegrabspreadsheet.so"),
                         QStringLiteral(CURVEGRAB_MANDIR "/man1/curvegrab.1"),
                         share + QStringLiteral("applications/" CURVEGRAB_DESKTOP_ID ".desktop"),
                         share + QStringLiteral("metainfo/" CURVEGRAB_DESKTOP_ID ".metainfo.xml"),
                         share + QStringLiteral("mime/packages/curvegrab.xml"),
                         share + QStringLiteral("icons/hicolor/scalable/apps/curvegrab.svg"),
                         share + QStringLiteral("icons/hicolor/scalable/mimetypes/"
                                                "application-x-curvegrab.svg")};
    for (const int size : iconSizes()) {
        expected += share + iconPath(size, "apps/curvegrab");
        expected += share + iconPath(size, "mimetypes/application-x-curvegrab");
    }
    for (const char *const example :
         {"cardioid-polar.crvgrab", "cardioid-polar.png", "damped-oscillation.crvgrab",
          "damped-oscillation.png", "decay-logarithmic.png", "growth-semilogarithmic.crvgrab",
          "growth-semilogarithmic.png", "slanted-chart.crvgrab", "slanted-chart.png"})
        expected += share + QStringLiteral("curvegrab/examples/") + QLatin1String(example);
    expected.sort();
    EXPECT_EQ(installedFiles().join(u'\n'), expected.join(u'\n'));
}

TEST_F(Install, hasIconsOfTheSizesOfTheirFolders)
{
    for (const int size : iconSizes()) {
        for (const char *const name : {"apps/curvegrab", "mimetypes/application-x-curvegrab"}) {
            const QImage icon(data(iconPath(size, name)));
            EXPECT_EQ(icon.size(), QSize(size, size)) << name;
            EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << name << " of " << size;
            EXPECT_EQ(icon.pixelColor(size / 2, size / 4).alpha(), 255) << name << " of " << size;
        }
    }
}

TEST_F(Install, hasAValidDesktopEntry)
{
    const Result result = run(QStringLiteral("desktop-file-validate"), {desktopEntry()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, QString());
}

TEST_F(Install, offersItselfForOurDocumentsAndForPicturesThatItOpens)
{
    QFile file(desktopEntry());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression line(QStringLiteral("^MimeType=(.*);$"),
                                         QRegularExpression::MultilineOption);
    QStringList types =
        line.match(QString::fromUtf8(file.readAll())).captured(1).split(QLatin1Char(';'));
    EXPECT_EQ(types.takeFirst(), QStringLiteral("application/x-curvegrab"));
    EXPECT_TRUE(types.contains(QStringLiteral("application/pdf")));
    for (const QString &type : std::as_const(types)) {
        const QStringList suffixes = QMimeDatabase().mimeTypeForName(type).suffixes();
        EXPECT_TRUE(std::any_of(suffixes.begin(), suffixes.end(), [](const QString &suffix) {
            return documenttypes::isPicture(QStringLiteral("a.") + suffix);
        })) << qPrintable(type);
    }
}

TEST_F(Install, makesTheExtensionOfDocumentsAType)
{
    const QTemporaryDir database;
    ASSERT_TRUE(QDir(database.path()).mkdir(QStringLiteral("packages")));
    ASSERT_TRUE(QFile::copy(data(QStringLiteral("mime/packages/curvegrab.xml")),
                            database.filePath(QStringLiteral("packages/curvegrab.xml"))));
    const Result result = run(QStringLiteral("update-mime-database"), {database.path()});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.out);
    QFile names(database.filePath(QStringLiteral("globs2")));
    ASSERT_TRUE(names.open(QIODevice::ReadOnly));
    EXPECT_TRUE(names.readAll().contains(QByteArray(":application/x-curvegrab:*.") +
                                         documenttypes::extension));
    EXPECT_TRUE(QFile::exists(database.filePath(QStringLiteral("application/x-curvegrab.xml"))));
}

TEST_F(Install, hasAValidDescriptionForSoftwareCentres)
{
    const Result result = run(QStringLiteral("appstreamcli"),
                              {QStringLiteral("validate-tree"), QStringLiteral("--no-net"),
                               QStringLiteral("--no-color"), prefix()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.contains(QStringLiteral("Validation was successful")))
        << qPrintable(result.out);
    EXPECT_FALSE(result.out.contains(QStringLiteral("\n  W:"))) << qPrintable(result.out);
}

TEST_F(Install, describesTheVersionThatItIs)
{
    QFile file(data(QStringLiteral("metainfo/" CURVEGRAB_DESKTOP_ID ".metainfo.xml")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<release version=\"" CURVEGRAB_VERSION "\""));
    const Result version = run(program(), {QStringLiteral("--version")}, privateSettings());
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, QStringLiteral("curvegrab " CURVEGRAB_VERSION "\n"));
}

TEST_F(Install, theInstalledProgramReadsAnInstalledExample)
{
    const QString example = data(QStringLiteral("curvegrab/examples/damped-oscillation.crvgrab"));
    const Result result = run(program(), {QStringLiteral("--export"), QStringLiteral("-"), example},
                              privateSettings());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.startsWith(QStringLiteral("Series_01_x\tSeries_01_y\n")))
        << qPrintable(result.out);
}

TEST_F(Install, theInstalledProgramFindsItsExamples)
{
    const QDir folder(exampledocuments::folderFor(QFileInfo(program()).path()));
    for (const exampledocuments::Example &example : exampledocuments::all())
        EXPECT_TRUE(folder.exists(QLatin1String(example.file))) << example.file;
}

TEST_F(Install, theInstalledProgramFindsItsModules)
{
    const QString folder = modules::folderFor(QFileInfo(program()).path());
    EXPECT_NE(modules::find<PdfLibrary>(folder, QStringLiteral("curvegrabpdf")), nullptr);
    EXPECT_NE(modules::find<PlotViewMaker>(folder, QStringLiteral("curvegrabplot")), nullptr);
    EXPECT_NE(modules::find<SpreadsheetWriter>(folder, QStringLiteral("curvegrabspreadsheet")),
              nullptr);
}

TEST_F(Install, theInstalledProgramWritesAWorkbook)
{
    const QString example = data(QStringLiteral("curvegrab/examples/damped-oscillation.crvgrab"));
    const QTemporaryDir folder;
    const QString book = folder.filePath(QStringLiteral("book.xlsx"));
    const Result result =
        run(program(), {QStringLiteral("--export"), book, example}, privateSettings());
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.out);
    QFile file(book);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("PK"));
}

// The program starts as quickly as if there were no plots, PDF files and spreadsheets.
TEST_F(Install, theProgramItselfNeedsNoLibraryOfItsModules)
{
    const Result needed = run(QStringLiteral("ldd"), {program()});
    EXPECT_EQ(needed.exitCode, 0);
    EXPECT_TRUE(needed.out.contains(QStringLiteral("libQt6Widgets")));
    for (const char *const library :
         {"libQt6Charts", "libQt6OpenGL", "libQt6Pdf", "libqpdf", "libxlsxwriter"})
        EXPECT_FALSE(needed.out.contains(QLatin1String(library))) << library;
}

// A packager's build must not leave its own folders in what users get.
TEST_F(Install, nothingRefersToTheFolderOfTheBuild)
{
    for (const QString &name : installedFiles()) {
        if (name == QStringLiteral(CURVEGRAB_BINDIR "/curvegrab") ||
            name.startsWith(QStringLiteral(CURVEGRAB_LIBDIR "/")))
            continue; // debuggers look up the sources there
        QFile file(prefix() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_FALSE(file.readAll().contains(CURVEGRAB_BUILD)) << qPrintable(name);
    }
    const Result paths = run(QStringLiteral("readelf"), {QStringLiteral("-d"), program()});
    EXPECT_EQ(paths.exitCode, 0);
    EXPECT_FALSE(paths.out.contains(QStringLiteral("RUNPATH"))) << qPrintable(paths.out);
}
