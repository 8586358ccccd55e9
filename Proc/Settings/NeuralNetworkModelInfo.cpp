#include "Proc/Settings/NeuralNetworkModelInfo.h"

namespace Zorvan::Proc {

bool NeuralNetworkModelInfo::IsEmpty() const
{
    return path.empty() && binaryData.empty();
}

bool NeuralNetworkModelInfo::operator==(const NeuralNetworkModelInfo& other) const
{
    return path == other.path && binaryData == other.binaryData && executorType == other.executorType;
}

std::string NeuralNetworkModelInfo::ExecutorTypeToString(ExecutorType type)
{
    switch (type) {
    case CPU:
        return "CPU";
    case GPU:
        return "GPU";
    case AUTO:
        return "AUTO";
    }
    return std::string();
}

} // namespace Zorvan::Proc
