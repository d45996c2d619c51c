#include "kindoperations.h"

#include "datakind.h"
#include "kinds.h"

#include <array>

namespace {

using KindTable = std::array<KindOperations, DataKind::DevicePresetFile + 1>;

KindTable kindTable()
{
    KindTable table;
    // clang-format off
    //                                 set                          get                              clear                  add                  list
    table[DataKind::NicIndex]         = {SessionKinds::setNicIndex,   SessionKinds::getNicIndex,       nullptr,               nullptr,             nullptr};
    table[DataKind::PageIndex]        = {SessionKinds::setPageIndex,  SessionKinds::getPageIndex,      nullptr,               nullptr,             nullptr};
    table[DataKind::WindowSize]       = {SessionKinds::setWindowSize, SessionKinds::getWindowSize,     nullptr,               nullptr,             nullptr};
    table[DataKind::DeviceCount]      = {nullptr,                     DeviceKinds::count,              nullptr,               nullptr,             nullptr};
    table[DataKind::Device]           = {DeviceKinds::set,            DeviceKinds::get,                nullptr,               DeviceKinds::add,    DeviceKinds::list};
    table[DataKind::Room]             = {nullptr,                     nullptr,                         RoomKinds::clear,      nullptr,             nullptr};
    table[DataKind::RoomCount]        = {nullptr,                     RoomKinds::count,                nullptr,               nullptr,             nullptr};
    table[DataKind::RoomInfo]         = {RoomKinds::set,              RoomKinds::get,                  nullptr,               nullptr,             nullptr};
    table[DataKind::Scene]            = {LayoutKinds::set,            LayoutKinds::get,                LayoutKinds::clear,    LayoutKinds::add,    nullptr};
    table[DataKind::SceneCount]       = {nullptr,                     LayoutKinds::count,              nullptr,               nullptr,             nullptr};
    table[DataKind::DeviceSet]        = {DeviceSetKinds::set,         DeviceSetKinds::get,             DeviceSetKinds::clear, DeviceSetKinds::add, DeviceSetKinds::list};
    table[DataKind::Preset]           = {nullptr,                     PresetKinds::get,                PresetKinds::clear,    PresetKinds::add,    PresetKinds::list};
    table[DataKind::PresetFile]       = {nullptr,                     PresetFileKinds::hubFile,        nullptr,               nullptr,             nullptr};
    table[DataKind::DeviceIPList]     = {nullptr,                     PresetFileKinds::peripherals,    nullptr,               nullptr,             nullptr};
    table[DataKind::DevicePresetFile] = {nullptr,                     PresetFileKinds::peripheralFile, nullptr,               nullptr,             nullptr};
    // clang-format on
    return table;
}

} // namespace

const KindOperations& operationsOf(int kind)
{
    static const KindTable table = kindTable();
    static const KindOperations nothing;
    return kind >= 0 && kind < int(table.size()) ? table[std::size_t(kind)] : nothing;
}
