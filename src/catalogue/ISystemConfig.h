#pragma once

class IDictionary;

/// The suite's configuration.
class ISystemConfig {
public:
    virtual ~ISystemConfig() = default;

    /// Reads the configuration again from its source.
    virtual void reload() = 0;

    /// The configuration's values, owned by the configuration. "name" is the main window's title.
    virtual IDictionary* getParameters() = 0;
};

/// The configuration object of the process, never null and never freed.
ISystemConfig* get_system_config_parameter();
