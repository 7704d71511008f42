// The same for the tests.
#pragma once

#include "precompiled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>
