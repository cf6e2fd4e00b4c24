// The module: its record, and the start-up and shut-down of the units with static objects.

#define CO_UNIT "source/quill/quill_module"

#include <co/co_obj.hpp>
#include <quill/quill_internal.h>
#include <quill/quill_module.h>
#include <quill/quill_module.hpp>
#include <quill/quill_typed_headers.hpp>

#ifndef QUILL_BUILD_STAMP // whoever builds for others says when
#define QUILL_BUILD_STAMP "UTC 2026-11-20 00:00:00 (Fri)"
#endif

constinit coModuleRecord const quill___module_record{
    2,
    "Quill",
    "Quill",
    QUILL_VERSION_MAJOR,
    QUILL_VERSION_MINOR,
    QUILL_VERSION_PATCH,
    QUILL_BUILD_STAMP,
    "The Quill authors",
    "Copyright the Quill authors. Licensed under the Apache License, Version 2.0.",
    "quill",
    "Session Initiation Protocol syntax",
    "0.0",
    "nx loc co",
    "",
};

#define QUILL_TEXT_OF(number) #number
#define QUILL_TEXT(number) QUILL_TEXT_OF(number)

constinit char const *const quill___module_version_string =
    "@(#) Quill " QUILL_TEXT(QUILL_VERSION_MAJOR) "." QUILL_TEXT(QUILL_VERSION_MINOR) "." QUILL_TEXT(
        QUILL_VERSION_PATCH) " " QUILL_BUILD_PLATFORM " " QUILL_BUILD_KIND " quill 0.0";

constinit struct coModule quill___module {
    &co___sort_CO_MODULE, &quill___module_record, quill___ModuleStartup, quill___ModuleShutdown
};

struct coModule *quillModule(void) {
    return &quill___module;
}

#define STARTUP(Type, SORT, name, shape, definition) quill___Header##Type##Startup,
#define SHUTDOWN(Type, SORT, name, shape, definition) quill___Header##Type##Shutdown,

static constexpr quill::Step startUpSteps[] = {
    QUILL_TYPED_HEADERS(STARTUP) // in the order of their list
    quill___MessageHeaderStartup,
    quill___SessUuidStartup,
    quill___UuiValueStartup,
    quill___VersionStartup,
    quill___ViaStartup,
    quill___MessageFragmentStartup,
};

// Not the mirror image of starting.
static constexpr quill::Step shutDownSteps[] = {
    quill___MessageFragmentShutdown, quill___SessUuidShutdown, quill___UuiValueShutdown,
    quill___VersionShutdown,         quill___ViaShutdown,      quill___MessageHeaderShutdown,
    QUILL_TYPED_HEADERS(SHUTDOWN) // in the same order
};

std::span<quill::Step const> quill::startUps() { return startUpSteps; }

std::span<quill::Step const> quill::shutDowns() { return shutDownSteps; }

bool quill___ModuleStartup(void) {
    for (quill::Step step : startUpSteps) step();
    return true;
}

void quill___ModuleShutdown(void) {
    for (quill::Step step : shutDownSteps) step();
}
