#include "installplan.h"

#include "httpreply.h"
#include "idocaccessor.h"
#include "installrun.h"

namespace {

/// What a hub answers that does all it is asked for, and exports under this name.
QString contentedReply()
{
    return QStringLiteral("HTTP/1.1 200 OK\r\n"
                          "Content-Disposition: attachment; filename=\"hub.xml\"\r\n"
                          "\r\n"
                          "{\"request\": \"accepted\", \"status\": \"invalid\"}");
}

bool changesHub(InstallStep step)
{
    return step >= InstallStep::PresetEntry && step <= InstallStep::Recall;
}

/// The name in a request line "PUT http://HUB/.../storage/NAME/xml HTTP/1.1".
QString storageNameIn(const QString& request)
{
    return request.section(QStringLiteral("/storage/"), 1, 1).section(u'/', 0, 0);
}

PlannedRequest planned(const InstallPlace& place, const QString& request)
{
    const bool isOfDevice = place.step == InstallStep::PeripheralFile;
    const qsizetype head = HttpReply::header(request).size();
    const QString body = request.mid(head + QStringLiteral("\r\n\r\n").size());
    return {place, isOfDevice ? storageNameIn(request) : QString(), body.toUtf8()};
}

bool goesOn(InstallMove move)
{
    return move == InstallMove::Send || move == InstallMove::SendAfterPause;
}

} // namespace

InstallPlan planInstallation(const QString& ipAddress, IDocAccessor& doc)
{
    InstallPlan plan;
    InstallRun run(ipAddress, &doc);
    run.begin();
    run.beginTransfer();
    InstallMove move = InstallMove::Send;
    while (goesOn(move)) {
        const std::optional<QString> request = run.request();
        if (!request) {
            move = InstallMove::EndForLackOfRecords;
            break;
        }
        if (changesHub(run.step())) {
            plan.requests.append(planned(run.place(), *request));
        }
        move = run.evaluate(contentedReply());
    }
    plan.outcome.isInstalled = move == InstallMove::EndInSuccess;
    if (!plan.outcome.isInstalled) {
        plan.outcome.trouble = InstallTrouble::MissingRecords;
        plan.outcome.place = run.place();
    }
    return plan;
}
