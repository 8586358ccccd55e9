#pragma once
// NeuralNetworkModelInfo, the description of a neural-network model.
#include <cstdint>
#include <string>

#include "Proc/Settings/Export.h"

namespace Zorvan::Proc {

// A model given by file path or by binary data (the whole model in memory),
// and the executor that runs it. An aggregate:
// NeuralNetworkModelInfo{path, binaryData, executorType}.
struct ZORVAN_SETTINGS_EXPORT NeuralNetworkModelInfo {
    // 32-bit; the numbers are the interface: saved projects and the engine store them.
    enum ExecutorType : std::uint32_t {
        CPU = 0,
        GPU = 1,
        AUTO = 2,
    };

    std::string path;
    std::string binaryData;
    ExecutorType executorType = CPU; // neutral default: 0, the CPU

    // True when both the path and the binary data are empty; the executor does not count.
    bool IsEmpty() const;
    // All three fields equal.
    bool operator==(const NeuralNetworkModelInfo& other) const;

    // "CPU" for 0, "GPU" for 1, "AUTO" for 2, an empty string for any other value.
    static std::string ExecutorTypeToString(ExecutorType type);
};

} // namespace Zorvan::Proc
