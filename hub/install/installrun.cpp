#include "installrun.h"

#include "httpreply.h"
#include "httprequest.h"
#include "installrequest.h"
#include "layoutqueries.h"
#include "presetqueries.h"
#include "storagename.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace {

constexpr int firstPreset = 1;

bool isAccepted(const QString& reply)
{
    return HttpReply::jsonText(reply, QStringLiteral("request")) == QLatin1String("accepted");
}

/// Each row stands at the place of its step.
template <typename Rows>
constexpr bool isInStepOrder(const Rows& rows)
{
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (rows[place].step != InstallStep(place)) {
            return false;
        }
    }
    return true;
}

QString accessToken(const QString& reply)
{
    return HttpReply::jsonText(reply, QStringLiteral("access-token"));
}

} // namespace

const InstallRun::Row& InstallRun::rowOf(InstallStep step)
{
    using Run = InstallRun;
    using Step = InstallStep;
    using Move = InstallMove;
    // clang-format off
    static constexpr std::array<Row, installStepCount> rows = {{
        // step                the request                  what a "200" means         what every other status means
        {Step::Status,         &Run::statusRequest,         &Run::afterStatus,         Move::EndByStatus},
        {Step::Token,          &Run::tokenRequest,          &Run::afterToken,          Move::EndByStatus},
        {Step::Validate,       &Run::validateRequest,       &Run::afterValidate,       Move::AskInitialPassword},
        {Step::Authenticate,   &Run::authenticateRequest,   &Run::afterAuthenticate,   Move::AskPasswordAgain},
        {Step::StartExport,    &Run::startExportRequest,    &Run::afterStartExport,    Move::EndByStatus},
        {Step::FetchExport,    &Run::fetchExportRequest,    &Run::afterFetchExport,    Move::EndByStatus},
        {Step::PresetEntry,    &Run::presetEntryRequest,    &Run::afterPresetEntry,    Move::EndByStatus},
        {Step::HubFile,        &Run::hubFileRequest,        &Run::afterHubFile,        Move::EndByStatus},
        {Step::PeripheralFile, &Run::peripheralFileRequest, &Run::afterPeripheralFile, Move::EndByStatus},
        {Step::Recall,         &Run::recallRequest,         &Run::afterRecall,         Move::EndByStatus},
        {Step::Invalidate,     &Run::invalidateRequest,     &Run::afterInvalidate,     Move::EndByStatus},
    }};
    // clang-format on
    static_assert(isInStepOrder(rows));
    return rows.at(static_cast<size_t>(step));
}

InstallRun::InstallRun(const QString& ipAddress, IDocAccessor* doc)
    : m_ipAddress(ipAddress)
    , m_doc(doc)
{
}

void InstallRun::begin()
{
    m_step = InstallStep::Status;
    m_presetCount = layoutCount(*m_doc);
    m_presetNumber = firstPreset;
    m_progress = {};
}

void InstallRun::beginTransfer()
{
    m_step = InstallStep::StartExport;
    m_progress = {.filesToStore = filesOfAllPresets()};
}

void InstallRun::setPassword(const QString& password)
{
    m_digest = passwordDigest(password);
}

InstallPlace InstallRun::place() const
{
    const bool isOfPreset =
        m_step >= InstallStep::PresetEntry && m_step <= InstallStep::PeripheralFile;
    const bool isOfDevice = m_step == InstallStep::PeripheralFile;
    return {m_step, isOfPreset ? m_presetNumber : 0,
            isOfDevice ? m_devices.value(m_deviceIndex) : QString()};
}

std::optional<QString> InstallRun::request()
{
    return (this->*rowOf(m_step).request)();
}

InstallMove InstallRun::evaluate(const QString& reply)
{
    const Row& row = rowOf(m_step);
    return HttpReply::isOk(reply) ? (this->*row.onSuccess)(reply) : row.otherwise;
}

InstallRun::Request InstallRun::statusRequest()
{
    return HttpRequest::getStatus(m_ipAddress);
}

InstallMove InstallRun::afterStatus(const QString& reply)
{
    // Hubs know other values too; those say nothing about the password.
    const int value = HttpReply::jsonInt(reply, QStringLiteral("is-initialized"));
    if (value == 0 || value == 1) {
        m_hubInitialized = value;
    }
    return goTo(InstallStep::Token);
}

InstallRun::Request InstallRun::tokenRequest()
{
    return HttpRequest::getToken(m_ipAddress);
}

InstallMove InstallRun::afterToken(const QString& reply)
{
    m_token = accessToken(reply);
    return m_hubInitialized != 0 ? goTo(InstallStep::Authenticate, InstallMove::AskPassword)
                                 : goTo(InstallStep::Validate, InstallMove::AskInitialPassword);
}

InstallRun::Request InstallRun::validateRequest()
{
    return InstallRequest::validate(m_ipAddress, m_token, takeDigest());
}

InstallMove InstallRun::afterValidate(const QString& reply)
{
    return isAccepted(reply) ? goTo(InstallStep::Authenticate, InstallMove::AskPassword)
                             : InstallMove::AskInitialPassword;
}

InstallRun::Request InstallRun::authenticateRequest()
{
    return HttpRequest::postAuthenticate(m_ipAddress, m_token, takeDigest());
}

InstallMove InstallRun::afterAuthenticate(const QString& reply)
{
    m_token = accessToken(reply);
    return InstallMove::EndLogIn;
}

InstallRun::Request InstallRun::startExportRequest()
{
    return InstallRequest::startExport(m_ipAddress, m_token);
}

InstallMove InstallRun::afterStartExport(const QString& /*reply*/)
{
    return goTo(InstallStep::FetchExport);
}

InstallRun::Request InstallRun::fetchExportRequest()
{
    return InstallRequest::fetchExport(m_ipAddress, m_token);
}

InstallMove InstallRun::afterFetchExport(const QString& reply)
{
    const auto name = storageName(HttpReply::header(reply));
    if (!name) {
        return InstallMove::SendAfterPause;
    }
    m_storageName = *name;
    return goTo(InstallStep::PresetEntry);
}

InstallRun::Request InstallRun::presetEntryRequest()
{
    const auto name = presetNameOfHub(*m_doc, m_ipAddress, m_presetNumber);
    if (!name) {
        return std::nullopt;
    }
    qDebug().noquote() << logPrefix() + QStringLiteral(" PresetName:") + *name;
    return InstallRequest::presetEntry(m_ipAddress, m_token, m_presetNumber, *name);
}

InstallMove InstallRun::afterPresetEntry(const QString& /*reply*/)
{
    return goTo(InstallStep::HubFile);
}

InstallRun::Request InstallRun::hubFileRequest()
{
    const auto file = hubPresetFile(*m_doc, m_ipAddress, m_presetNumber);
    if (!file) {
        return std::nullopt;
    }
    qDebug().noquote() << logPrefix() + QStringLiteral(" PresetName:") + m_storageName;
    return InstallRequest::presetFile(m_ipAddress, m_token, m_presetNumber, m_storageName,
                                      QString::fromUtf8(*file));
}

InstallMove InstallRun::afterHubFile(const QString& /*reply*/)
{
    countFile();
    const auto devices = peripheralsOfHub(*m_doc, m_ipAddress, m_presetNumber);
    m_devices = devices.value_or(QStringList());
    m_deviceIndex = 0;
    if (!devices) {
        return goTo(InstallStep::PeripheralFile, InstallMove::EndForLackOfRecords);
    }
    return m_devices.isEmpty() ? goToNextPreset() : goTo(InstallStep::PeripheralFile);
}

InstallRun::Request InstallRun::peripheralFileRequest()
{
    const auto file = peripheralPresetFile(*m_doc, m_devices.at(m_deviceIndex));
    if (!file) {
        return std::nullopt;
    }
    const QString mac = QString(file->macAddress).remove(u':');
    const QString text = QString::fromUtf8(file->content);
    qDebug().noquote() << logPrefix() + QStringLiteral(" Index:%1 MAC:%2 body:%3")
                                            .arg(QString::number(m_deviceIndex), mac, text);
    return InstallRequest::presetFile(m_ipAddress, m_token, m_presetNumber, mac, text);
}

InstallMove InstallRun::afterPeripheralFile(const QString& /*reply*/)
{
    ++m_deviceIndex;
    countFile();
    return m_deviceIndex < m_devices.size() ? InstallMove::Send : goToNextPreset();
}

InstallRun::Request InstallRun::recallRequest()
{
    return InstallRequest::recall(m_ipAddress, m_token, firstPreset);
}

InstallMove InstallRun::afterRecall(const QString& reply)
{
    // The token is given back whether or not the hub took the recall.
    return goTo(InstallStep::Invalidate,
                isAccepted(reply) ? InstallMove::Send : InstallMove::SendAfterRefusal);
}

InstallRun::Request InstallRun::invalidateRequest()
{
    return HttpRequest::postInvalidate(m_ipAddress, m_token);
}

InstallMove InstallRun::afterInvalidate(const QString& reply)
{
    m_token.clear();
    const QString status = HttpReply::jsonText(reply, QStringLiteral("status"));
    return status == QLatin1String("invalid") ? InstallMove::EndInSuccess
                                              : InstallMove::EndUnconfirmed;
}

InstallMove InstallRun::goTo(InstallStep step, InstallMove move)
{
    m_step = step;
    return move;
}

InstallMove InstallRun::goToNextPreset()
{
    if (m_presetNumber >= m_presetCount) {
        return goTo(InstallStep::Recall);
    }
    ++m_presetNumber;
    return goTo(InstallStep::PresetEntry);
}

/// One of the hub's own and one of each device, in every preset.
int InstallRun::filesOfAllPresets() const
{
    int files = 0;
    for (int preset = firstPreset; preset <= m_presetCount; ++preset) {
        files +=
            1 + int(peripheralsOfHub(*m_doc, m_ipAddress, preset).value_or(QStringList()).size());
    }
    return files;
}

/// A device that was put back into a set meanwhile makes one file more than there were to be.
void InstallRun::countFile()
{
    ++m_progress.filesStored;
    m_progress.filesToStore = std::max(m_progress.filesToStore, m_progress.filesStored);
}

QString InstallRun::takeDigest()
{
    return std::exchange(m_digest, QString());
}

QString InstallRun::logPrefix() const
{
    return QStringLiteral("%1 Step:%2").arg(m_ipAddress, QString::number(int(m_step)));
}
