#include "filesizelimit.h"
#include "resumefile.h"
#include "testcase.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

namespace {

QPixmap picture(const QColor& colour, QSize size = {64, 64})
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

ResumeFile sample()
{
    return {QStringLiteral("<Tessel Page=\"1\"/>"),
            {{1, QStringLiteral("1+2"), picture(Qt::red)},
             {2, QStringLiteral("1/2"), picture(Qt::blue)},
             {3, QStringLiteral("2/1"), QPixmap()}}};
}

void compare(const ResumeFile& read, const ResumeFile& expected)
{
    QCOMPARE(read.xml, expected.xml);
    QCOMPARE(read.scenes.size(), expected.scenes.size());
    for (qsizetype index = 0; index < read.scenes.size(); ++index) {
        const SceneInfo& scene = read.scenes.at(index);
        QCOMPARE(scene.number, expected.scenes.at(index).number);
        QCOMPARE(scene.roomGroup, expected.scenes.at(index).roomGroup);
        QCOMPARE(scene.thumbnail.toImage(), expected.scenes.at(index).thumbnail.toImage());
    }
}

/// A text and whatever `tail` writes behind it.
template <typename Tail>
QByteArray withTail(Tail tail)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QStringLiteral("<Tessel/>");
    tail(stream);
    return bytes;
}

QByteArray number(quint32 value)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << value;
    return bytes;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The most memory that this program has used so far, in KiB; 0 where the system does not say.
long peakMemory()
{
#ifdef Q_OS_LINUX
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
#else
    return 0;
#endif
}

/// Judged by the caller once the limit is gone: it holds for the test's own log as well.
bool writeLimited(const QString& path, const QByteArray& bytes, qint64 room)
{
    const FileSizeLimit limit(room);
    return writeResumeFile(path, bytes);
}

} // namespace

class TestResumeFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void layoutIsThatOfAPlainDataStream();
    void contentComesBack();
    void fileOfAPlainDataStreamIsRead();
    void sameContentIsTheSameBytes();
    void theScreensResolutionChangesNoByte();
    void fileCutAtEveryLengthKeepsWhatIsWhole();
    void flippedBytesNeverBreakTheReader();
    void textLongerThanTheFileIsRefused_data();
    void textLongerThanTheFileIsRefused();
    void sceneCountIsNotBelieved_data();
    void sceneCountIsNotBelieved();
    void lengthOfARoomGroupIsNotBelieved();
    void damagedPictureEndsTheReadingThere();
    void picturesAreReadWithoutTheirTexts();
    void absurdPictureEndsTheReadingThere_data();
    void absurdPictureEndsTheReadingThere();
    void hostileFilesCostLittleMemory();
    void writtenFileReadsBack();
    void unwritablePlacesAreTold_data();
    void unwritablePlacesAreTold();
    void fullDiskLeavesTheEarlierFileWhole_data();
    void fullDiskLeavesTheEarlierFileWhole();
    void nothingIsLeftBesideTheFile();
    void oversizedFilesAreNeitherWrittenNorRead();
    void missingFileIsTold();
};

void TestResumeFile::layoutIsThatOfAPlainDataStream()
{
    QDataStream stream(packResumeFile(sample()));
    QString xml;
    qint64 count = 0;
    stream >> xml >> count;
    QCOMPARE(xml, sample().xml);
    QCOMPARE(count, 3);
    for (const SceneInfo& scene : sample().scenes) {
        qint32 sceneNumber = 0;
        QString roomGroup;
        QPixmap thumbnail;
        stream >> sceneNumber >> roomGroup >> thumbnail;
        QCOMPARE(sceneNumber, scene.number);
        QCOMPARE(roomGroup, scene.roomGroup);
        QCOMPARE(thumbnail.toImage(), scene.thumbnail.toImage());
    }
    QCOMPARE(stream.status(), QDataStream::Ok);
    QVERIFY(stream.atEnd());
}

void TestResumeFile::contentComesBack()
{
    const auto read = unpackResumeFile(packResumeFile(sample()));
    QVERIFY(read);
    compare(*read, sample());
}

void TestResumeFile::fileOfAPlainDataStreamIsRead()
{
    QImage image(64, 64, QImage::Format_Mono);
    image.fill(0);
    const QPixmap mono = QPixmap::fromImage(image);
    const auto read = unpackResumeFile(withTail([&](QDataStream& stream) {
        stream << qint64(2) << qint32(7) << QString() << mono;
        stream << qint32(-1) << QStringLiteral("1") << picture(Qt::green, {256, 256});
    }));
    QVERIFY(read);
    QCOMPARE(read->scenes.size(), 2);
    QCOMPARE(read->scenes.first().number, 7);
    QCOMPARE(read->scenes.first().thumbnail.size(), QSize(64, 64));
    QCOMPARE(read->scenes.last().number, -1);
    QCOMPARE(read->scenes.last().thumbnail.size(), QSize(256, 256));
}

void TestResumeFile::theScreensResolutionChangesNoByte()
{
    QImage image = picture(Qt::green, {64, 64}).toImage();
    QByteArray first;
    for (const int dotsPerMeter : {2835, 3780, 7559}) {
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        const SceneInfo scene{1, QStringLiteral("1/2"), QPixmap::fromImage(image)};
        const QByteArray bytes = packResumeFile({QString(), {scene}});
        first = first.isEmpty() ? bytes : first;
        QCOMPARE(bytes, first);
    }
}

void TestResumeFile::sameContentIsTheSameBytes()
{
    QCOMPARE(packResumeFile(sample()), packResumeFile(sample()));
}

void TestResumeFile::fileCutAtEveryLengthKeepsWhatIsWhole()
{
    const QByteArray bytes = packResumeFile(sample());
    const qsizetype textEnd = packResumeFile({sample().xml, {}}).size() - qsizetype(sizeof(qint64));
    qsizetype scenes = 0;
    for (qsizetype length = 0; length < bytes.size(); ++length) {
        const auto read = unpackResumeFile(bytes.first(length));
        QCOMPARE(read.has_value(), length >= textEnd);
        if (read) {
            QVERIFY(read->scenes.size() >= scenes);
            scenes = read->scenes.size();
        }
    }
    QCOMPARE(scenes, 2);
}

void TestResumeFile::flippedBytesNeverBreakTheReader()
{
    const QByteArray bytes = packResumeFile(sample());
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        for (const char mask : {'\x01', '\x10', '\x80', '\xff'}) {
            QByteArray damaged = bytes;
            damaged[at] = char(damaged.at(at) ^ mask);
            const auto read = unpackResumeFile(damaged);
            QVERIFY(!read || read->scenes.size() <= 3);
        }
    }
}

void TestResumeFile::textLongerThanTheFileIsRefused_data()
{
    QTest::addColumn<quint32>("length");
    QTest::newRow("one unit too long") << 22U;
    QTest::newRow("odd") << 19U;
    QTest::newRow("2 GB") << 0x80000000U;
    QTest::newRow("just below 4 GB") << 0xfffffffcU;
    QTest::newRow("the mark of longer lengths") << 0xfffffffeU;
}

void TestResumeFile::textLongerThanTheFileIsRefused()
{
    QFETCH(const quint32, length);
    QVERIFY(!unpackResumeFile(number(length) + QByteArray(20, '\0')));
}

void TestResumeFile::sceneCountIsNotBelieved_data()
{
    QTest::addColumn<qint64>("count");
    QTest::addColumn<int>("read");
    QTest::newRow("right") << qint64(2) << 2;
    QTest::newRow("too small") << qint64(1) << 1;
    QTest::newRow("zero") << qint64(0) << 0;
    QTest::newRow("negative") << qint64(-5) << 0;
    QTest::newRow("the most negative") << std::numeric_limits<qint64>::min() << 0;
    QTest::newRow("too large") << qint64(3) << 2;
    QTest::newRow("2^62") << (qint64(1) << 62U) << 2;
    QTest::newRow("the largest") << std::numeric_limits<qint64>::max() << 2;
}

void TestResumeFile::sceneCountIsNotBelieved()
{
    QFETCH(const qint64, count);
    const auto read = unpackResumeFile(withTail([count](QDataStream& stream) {
        stream << count << qint32(1) << QStringLiteral("1") << picture(Qt::red);
        stream << qint32(2) << QStringLiteral("2") << QPixmap();
    }));
    QVERIFY(read);
    QTEST(int(read->scenes.size()), "read");
}

void TestResumeFile::lengthOfARoomGroupIsNotBelieved()
{
    const auto read = unpackResumeFile(withTail([](QDataStream& stream) {
        stream << qint64(2) << qint32(1) << QStringLiteral("1") << picture(Qt::red);
        stream << qint32(2) << quint32(0x80000000U) << QPixmap();
    }));
    QVERIFY(read);
    QCOMPARE(read->scenes.size(), 1);
}

void TestResumeFile::damagedPictureEndsTheReadingThere()
{
    QByteArray bytes = packResumeFile(sample());
    const qsizetype secondPicture = bytes.lastIndexOf("IDAT");
    bytes[secondPicture + 6] = char(bytes.at(secondPicture + 6) ^ 0x40);
    const auto read = unpackResumeFile(bytes);
    QVERIFY(read);
    QCOMPARE(read->scenes.size(), 1);
    QCOMPARE(read->scenes.first().thumbnail.toImage(), picture(Qt::red).toImage());
}

void TestResumeFile::picturesAreReadWithoutTheirTexts()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::green);
    image.setText(QStringLiteral("Title"), QStringLiteral("plain"));
    const auto read = unpackResumeFile(withTail([&image](QDataStream& stream) {
        stream << qint64(1) << qint32(1) << QStringLiteral("1") << QPixmap::fromImage(image);
    }));
    QVERIFY(read);
    QCOMPARE(read->scenes.size(), 1);
    const QImage thumbnail = read->scenes.first().thumbnail.toImage();
    QCOMPARE(thumbnail, image);
    QCOMPARE(thumbnail.textKeys(), QStringList());
}

void TestResumeFile::absurdPictureEndsTheReadingThere_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("too wide") << QSize(257, 1);
    QTest::newRow("too high") << QSize(1, 257);
    QTest::newRow("large and well packed") << QSize(8000, 8000);
}

void TestResumeFile::absurdPictureEndsTheReadingThere()
{
    QFETCH(const QSize, size);
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    const auto read = unpackResumeFile(withTail([&image](QDataStream& stream) {
        stream << qint64(2) << qint32(1) << QStringLiteral("1") << image;
        stream << qint32(2) << QStringLiteral("2") << picture(Qt::red);
    }));
    QVERIFY(read);
    QVERIFY(read->scenes.isEmpty());
}

void TestResumeFile::hostileFilesCostLittleMemory()
{
    const long before = peakMemory();
    QVERIFY(!unpackResumeFile(number(0x7ffffffeU) + QByteArray(1000, 'x')));
    QByteArray scene;
    QDataStream(&scene, QIODevice::WriteOnly)
        << qint32(1) << QString() << picture(Qt::red, {256, 256});
    const QByteArray pictures =
        withTail([](QDataStream& stream) { stream << (qint64(1) << 62U); }) +
        scene.repeated(20'000);
    const auto read = unpackResumeFile(pictures);
    QVERIFY(read);
    QCOMPARE(read->scenes.size(), 100);
    QVERIFY(peakMemory() - before < 200L * 1024);
}

void TestResumeFile::writtenFileReadsBack()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("resume.dat"));
    const QByteArray bytes = packResumeFile(sample());
    QVERIFY(writeResumeFile(path, "an earlier and much longer file"));
    QVERIFY(writeResumeFile(path, bytes));
    QCOMPARE(contentOf(path), bytes);
    QCOMPARE(readResumeFile(path), bytes);
}

void TestResumeFile::unwritablePlacesAreTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder that is not there") << QStringLiteral("missing/resume.dat");
    QTest::newRow("file in the folder's place") << QStringLiteral("file/resume.dat");
    QTest::newRow("folder in the file's place") << QStringLiteral("folder");
}

void TestResumeFile::unwritablePlacesAreTold()
{
    QFETCH(const QString, path);
    const QTemporaryDir scratch;
    QVERIFY(writeResumeFile(scratch.filePath(QStringLiteral("file")), "x"));
    QVERIFY(QDir(scratch.path()).mkdir(QStringLiteral("folder")));
    QVERIFY(!writeResumeFile(scratch.filePath(path), "content"));
}

void TestResumeFile::fullDiskLeavesTheEarlierFileWhole_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("small enough to be written in one piece at the end") << 5'000;
    QTest::newRow("large") << 100'000;
}

void TestResumeFile::fullDiskLeavesTheEarlierFileWhole()
{
    if (!FileSizeLimit::isPossible()) {
        QSKIP("Files cannot be limited in size here.");
    }
    QFETCH(const int, size);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("resume.dat"));
    QVERIFY(writeResumeFile(path, "earlier"));
    for (const int room : {0, 1, 4096, size - 1}) {
        QVERIFY(!writeLimited(path, QByteArray(size, 'x'), room));
    }
    QCOMPARE(contentOf(path), QByteArray("earlier"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    QVERIFY(writeResumeFile(path, QByteArray(size, 'x')));
}

void TestResumeFile::nothingIsLeftBesideTheFile()
{
    const QTemporaryDir folder;
    QVERIFY(writeResumeFile(folder.filePath(QStringLiteral("resume.dat")), "content"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("resume.dat")});
}

void TestResumeFile::oversizedFilesAreNeitherWrittenNorRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("resume.dat"));
    const QByteArray largest(qsizetype(8) * 1024 * 1024, 'x');
    QVERIFY(writeResumeFile(path, largest));
    QVERIFY(readResumeFile(path));
    QVERIFY(!writeResumeFile(path, largest + 'x'));
    QCOMPARE(contentOf(path), largest);
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append) && file.write("x") == 1);
    file.close();
    QVERIFY(!readResumeFile(path));
}

void TestResumeFile::missingFileIsTold()
{
    const QTemporaryDir folder;
    QVERIFY(!readResumeFile(folder.filePath(QStringLiteral("resume.dat"))));
    QVERIFY(!readResumeFile(folder.path()));
}

TESSEL_TEST_MAIN(TestResumeFile)
#include "tst_resumefile.moc"
