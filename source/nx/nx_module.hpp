// The module record that the sorts of this directory belong to.
#pragma once

#include <co/co_obj.hpp>

extern "C" struct coModule nx___module;
