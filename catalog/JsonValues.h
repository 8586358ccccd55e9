#pragma once
// JSON shapes of the value types that records hold, shared by the catalogue's fields and the
// command-line tool. Templates on the JSON type, so that the tool's ordered JSON keeps the
// member order: Json is nlohmann::json or nlohmann::ordered_json.
#include <nlohmann/json.hpp>

#include "Proc/Settings/CropInfo.h"
#include "Proc/Settings/NeuralNetworkModelInfo.h"
#include "Proc/Settings/SettingsFilterCutController.h"
#include "imported/ConfInt.h"

namespace Zorvan::CatalogJson {

// {left, right, top, bottom}, the order of CropInfo.
template <class Json = nlohmann::json>
Json FromCrop(const Proc::CropInfo& crop)
{
    return Json{{"left", crop.left}, {"right", crop.right}, {"top", crop.top}, {"bottom", crop.bottom}};
}

// {width, height, parNumerator, parDenominator}, the order of FrameInfo.
template <class Json = nlohmann::json>
Json FromFrame(const Conf::FrameInfo& frame)
{
    return Json{{"width", frame.width},
                {"height", frame.height},
                {"parNumerator", frame.parNumerator},
                {"parDenominator", frame.parDenominator}};
}

// {path, binaryDataSize, executorType}: the binary data by its size, since it need not be text.
template <class Json = nlohmann::json>
Json FromModel(const Proc::NeuralNetworkModelInfo& model)
{
    return Json{{"path", model.path},
                {"binaryDataSize", model.binaryData.size()},
                {"executorType", static_cast<std::uint32_t>(model.executorType)}};
}

// [{begin, end, deletedBefore, deleted}, ...] in list order.
template <class Json = nlohmann::json>
Json FromIntervals(const std::deque<Proc::SettingsFilterCutController::Interval>& intervals)
{
    Json list = Json::array();
    for (const auto& interval : intervals) {
        list.push_back(Json{{"begin", interval.begin},
                            {"end", interval.end},
                            {"deletedBefore", interval.deletedBefore},
                            {"deleted", interval.deleted}});
    }
    return list;
}

} // namespace Zorvan::CatalogJson
