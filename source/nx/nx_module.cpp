// The module record. It needs no start-up.

#include <nx/nx_module.hpp>

static constexpr coModuleRecord record{2,    "Quill",          "Quill", 0,    1, 0, "", "Quill", "Apache License 2.0",
                                       "nx", "internet names", "0.0",   "co", ""};

constinit coModule nx___module{&co___sort_CO_MODULE, &record, nullptr, nullptr};
