#include "hubscript.h"

#include <QStringList>

namespace {

struct Beginning
{
    InstallStep step;
    QByteArray method;
    QByteArray path;
};

const QList<Beginning>& beginnings()
{
    static const QList<Beginning> list{
        {InstallStep::Status, "GET", "auth/status "},
        {InstallStep::Token, "GET", "auth/token "},
        {InstallStep::Validate, "POST", "auth/validate "},
        {InstallStep::Authenticate, "POST", "auth/authenticate "},
        {InstallStep::StartExport, "POST", "config/export/self/ "},
        {InstallStep::FetchExport, "GET", "config/export/self/ "},
        {InstallStep::PresetEntry, "PUT", "config/presets/ "},
        {InstallStep::Recall, "POST", "config/presets/recall "},
        {InstallStep::Invalidate, "POST", "auth/token/invalidate "},
    };
    return list;
}

} // namespace

InstallStep stepOf(const QByteArray& request)
{
    const QByteArray line = request.first(request.indexOf('\r'));
    for (const Beginning& beginning : beginnings()) {
        if (line.startsWith(beginning.method + ' ') && line.contains("/api/v0/" + beginning.path)) {
            return beginning.step;
        }
    }
    return line.contains(QByteArray("/storage/") + HubScript::storageName + '/')
               ? InstallStep::HubFile
               : InstallStep::PeripheralFile;
}

QString stepsOf(const QByteArrayList& requests)
{
    QStringList steps;
    for (const QByteArray& request : requests) {
        steps.append(QString::number(int(stepOf(request))));
    }
    return steps.join(u' ');
}

ScriptedAnswer HubScript::operator()(const QByteArray& request, qsizetype /*number*/)
{
    const InstallStep step = stepOf(request);
    QList<ScriptedAnswer>& queue = first[step];
    if (!queue.isEmpty()) {
        return queue.takeFirst();
    }
    return instead.contains(step) ? instead.value(step) : good(step);
}

ScriptedAnswer HubScript::good(InstallStep step) const
{
    switch (step) {
    case InstallStep::Status:
        return okAnswer("{\"is-initialized\": " + QByteArray::number(initialized) + "}",
                        extraHeader);
    case InstallStep::Token:
        return okAnswer(R"({"access-token": "T1"})", extraHeader);
    case InstallStep::Authenticate:
        return okAnswer(R"({"access-token": "T2"})", extraHeader);
    case InstallStep::FetchExport:
        return okAnswer("<export/>", extraHeader + "Content-Disposition: attachment; filename=\"" +
                                         storageName + ".xml\"\r\n");
    case InstallStep::Validate:
    case InstallStep::Recall:
        return okAnswer(R"({"request": "accepted"})", extraHeader);
    case InstallStep::Invalidate:
        return okAnswer(R"({"status": "invalid"})", extraHeader);
    default:
        return okAnswer("{}", extraHeader);
    }
}
