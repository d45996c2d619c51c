#include "installrequest.h"
#include "testcase.h"

#include <QTest>

class TestInstallRequest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRequestIsWrittenByteForByte_data();
    void everyRequestIsWrittenByteForByte();
    void presetNamesArriveAsTyped_data();
    void presetNamesArriveAsTyped();
};

namespace {

QString address()
{
    return QStringLiteral("10.0.0.7");
}

QString token()
{
    return QStringLiteral("T2");
}

/// The request with a body of these values, line by line.
QByteArray expectedRequest(const QByteArray& line, const QByteArray& type, const QByteArray& body)
{
    return line + " HTTP/1.1\r\n" + "Accept: application/json, text/plain\r\n" +
           "authorization: bearer T2\r\n" + "Content-Type: application/" + type +
           ";charset=utf-8\r\n" + "Content-Length: " + QByteArray::number(body.size()) + "\r\n" +
           "Connection: keep-alive\r\n" + "\r\n" + body;
}

} // namespace

void TestInstallRequest::everyRequestIsWrittenByteForByte_data()
{
    QTest::addColumn<QString>("request");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("validate") << InstallRequest::validate(address(), token(),
                                                          QStringLiteral("0cc1"))
                              << expectedRequest("POST http://10.0.0.7/api/v0/auth/validate",
                                                 "json", R"({"admin": "0cc1"})");
    QTest::newRow("start of the export")
        << InstallRequest::startExport(address(), token())
        << expectedRequest("POST http://10.0.0.7/api/v0/config/export/self/", "json",
                           R"({"export":1})");
    QTest::newRow("the export") << InstallRequest::fetchExport(address(), token())
                                << QByteArray("GET http://10.0.0.7/api/v0/config/export/self/ "
                                              "HTTP/1.1\r\n"
                                              "Accept: application/json, text/plain\r\n"
                                              "authorization: bearer T2\r\n"
                                              "Content-Type: application/json;charset=utf-8\r\n"
                                              "Connection: keep-alive\r\n"
                                              "\r\n");
    QTest::newRow("preset entry")
        << InstallRequest::presetEntry(address(), token(), 3, QStringLiteral("All rooms"))
        << expectedRequest("PUT http://10.0.0.7/api/v0/config/presets/", "json",
                           R"({"description": "All rooms", "preset-number": 3, "source-type": 2, )"
                           R"("external-source": ""})");
    QTest::newRow("preset file")
        << InstallRequest::presetFile(address(), token(), 3, QStringLiteral("hub01"),
                                      QStringLiteral("<a b=\"\u00C4\"/>\n"))
        << expectedRequest("PUT http://10.0.0.7/api/v0/config/presets/3/storage/hub01/xml", "xml",
                           "<a b=\"\xC3\x84\"/>\n");
    QTest::newRow("a storage name with a percent sign")
        << InstallRequest::presetFile(address(), token(), 3, QStringLiteral("h%1%2"),
                                      QStringLiteral("%1"))
        << expectedRequest("PUT http://10.0.0.7/api/v0/config/presets/3/storage/h%1%2/xml", "xml",
                           "%1");
    QTest::newRow("recall") << InstallRequest::recall(address(), token(), 1)
                            << expectedRequest("POST http://10.0.0.7/api/v0/config/presets/recall",
                                               "json", R"({"preset-number": 1})");
}

void TestInstallRequest::everyRequestIsWrittenByteForByte()
{
    QFETCH(const QString, request);
    QTEST(request.toUtf8(), "expected");
}

void TestInstallRequest::presetNamesArriveAsTyped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("inBody");
    QTest::newRow("plain") << QStringLiteral("All") << QByteArray("All");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("a quote gets a backslash, a backslash is doubled")
        << QStringLiteral("\u00C4 \"x\" \\ y") << QByteArray("\xC3\x84 \\\"x\\\" \\\\ y");
    QTest::newRow("a quote behind a backslash") << QStringLiteral("\\\"") << QByteArray("\\\\\\\"");
    QTest::newRow("what looks like a placeholder") << QStringLiteral("50%2") << QByteArray("50%2");
    QTest::newRow("all placeholders") << QStringLiteral("%1%2%3%L1%%") << QByteArray("%1%2%3%L1%%");
    QTest::newRow("control characters are left alone")
        << QStringLiteral("a\tb") << QByteArray("a\tb");
    QTest::newRow("beyond the base plane")
        << QStringLiteral("\U0001F3A4") << QByteArray("\xF0\x9F\x8E\xA4");
}

void TestInstallRequest::presetNamesArriveAsTyped()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, inBody);
    const QByteArray body = "{\"description\": \"" + inBody +
                            "\", \"preset-number\": 12, \"source-type\": 2, "
                            "\"external-source\": \"\"}";
    QCOMPARE(InstallRequest::presetEntry(address(), token(), 12, name).toUtf8(),
             expectedRequest("PUT http://10.0.0.7/api/v0/config/presets/", "json", body));
}

TESSEL_TEST_MAIN(TestInstallRequest)
#include "tst_installrequest.moc"
