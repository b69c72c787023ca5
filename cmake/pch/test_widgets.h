// The widget set plus Qt Test, for the window tests.
#pragma once

#include "widgets.h"

#include <QSignalSpy>
#include <QTest>
