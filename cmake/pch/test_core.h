// The core set plus the test framework, for the logic tests.
#pragma once

#include "core.h"

#include <gtest/gtest.h>
