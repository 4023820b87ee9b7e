#pragma once

#include "engine/SessionFixture.h"
#include "engine/run/DocumentedCases.h"

#include <initializer_list>

namespace engine {

/// Documented cases over tables of their own, by their rows alone.
class DocumentedTest : public SessionTest {
protected:
    void expectRows(std::initializer_list<documented::Case> cases) {
        for (const documented::Case& one : cases) {
            EXPECT_EQ(rows(one.statement), one.answer) << one.statement << "\n" << one.page;
        }
    }
};

} // namespace engine
