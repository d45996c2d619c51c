#include "newfile.h"

#include "idocaccessor.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Saves one word, or fails to.
class WordDocument : public IDocAccessor
{
public:
    bool setData(int /*kind*/, const QVariantMap& /*data*/) override { return false; }
    bool getData(int /*kind*/, QVariantMap& /*data*/) override { return false; }
    bool clearData(int /*kind*/) override { return false; }
    bool addData(int /*kind*/, const QVariantMap& /*data*/) override { return false; }
    bool doAction(int /*kind*/, const QVariantMap& /*data*/) override { return false; }
    bool getDataList(int /*kind*/, const QVariantMap& /*selector*/,
                     QList<QVariantMap>& /*list*/) override
    {
        return false;
    }
    bool saveResume(const QString& path) override
    {
        QFile file(path);
        return canSave && file.open(QIODevice::WriteOnly) && file.write(word) == word.size();
    }
    bool loadResume(const QString& /*path*/) override { return false; }

    QByteArray word = "work";
    bool canSave = true;
};

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestNewFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNameThatIsFreeIsTaken();
    void filesThatAreThereStayAndTheNewOneIsNumbered();
    void workThatCannotBeSavedLeavesNothing();
    void aFolderThatIsNotThereTakesNothing();
};

void TestNewFile::aNameThatIsFreeIsTaken()
{
    const QTemporaryDir folder;
    WordDocument doc;
    const QString path = folder.filePath(QStringLiteral("2026-01-02 03-04-05.tessel"));
    QCOMPARE(saveAsNewFile(doc, path), path);
    QCOMPARE(bytesOf(path), QByteArray("work"));
}

void TestNewFile::filesThatAreThereStayAndTheNewOneIsNumbered()
{
    const QTemporaryDir folder;
    WordDocument doc;
    const QString path = folder.filePath(QStringLiteral("2026-01-02 03.04.tessel"));
    for (const char* word : {"first", "second", "third"}) {
        doc.word = word;
        QVERIFY(!saveAsNewFile(doc, path).isEmpty());
    }
    QCOMPARE(bytesOf(path), QByteArray("first"));
    QCOMPARE(bytesOf(folder.filePath(QStringLiteral("2026-01-02 03.04 (2).tessel"))),
             QByteArray("second"));
    QCOMPARE(bytesOf(folder.filePath(QStringLiteral("2026-01-02 03.04 (3).tessel"))),
             QByteArray("third"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

void TestNewFile::workThatCannotBeSavedLeavesNothing()
{
    const QTemporaryDir folder;
    WordDocument doc;
    doc.canSave = false;
    QCOMPARE(saveAsNewFile(doc, folder.filePath(QStringLiteral("a.tessel"))), QString());
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestNewFile::aFolderThatIsNotThereTakesNothing()
{
    const QTemporaryDir folder;
    WordDocument doc;
    QCOMPARE(saveAsNewFile(doc, folder.filePath(QStringLiteral("missing/a.tessel"))), QString());
}

TESSEL_TEST_MAIN(TestNewFile)
#include "tst_newfile.moc"
