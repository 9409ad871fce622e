#pragma once

#include "catalogue/DictionaryGuard.h"
#include "catalogue/ISystemConfig.h"

/// The configuration that is built into the tool.
class SystemConfig final : public ISystemConfig {
public:
    SystemConfig();

    void reload() override;
    IDictionary* getParameters() override;

private:
    DictionaryGuard parameters;
};
