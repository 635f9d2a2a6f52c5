// SPDX-License-Identifier: Zlib
#include "base/Trapped.h"
#include "tests/support/Messages.h"

#include <gtest/gtest.h>

#include <new>

TEST(Trapped, ShowsWhatEscapesInOneWording)
{
    support::Messages recorder;
    base::Trapped(recorder, "LoadObject", [] { throw base::RuntimeError(53); });
    base::Trapped(recorder, "Load", [] { throw std::bad_alloc(); });
    base::Trapped(recorder, "StartProcess", [] {});
    ASSERT_EQ(recorder.Boxes.size(), 2u);
    EXPECT_EQ(recorder.Boxes[0].Icon, base::Icon::Critical);
    EXPECT_EQ(recorder.Boxes[0].Title, "Errore 53");
    EXPECT_EQ(recorder.Boxes[0].Text, "Impossibile trovare il file in LoadObject");
    EXPECT_EQ(recorder.Boxes[1].Title, "Errore 7");
    EXPECT_EQ(recorder.Boxes[1].Text, "Memoria esaurita in Load");
}

TEST(Trapped, OneProcedureStandsWithoutTheBlank)
{
    support::Messages recorder;
    base::Trapped(recorder, "WidthBytes", [] { throw base::RuntimeError(6); });
    ASSERT_EQ(recorder.Boxes.size(), 1u);
    EXPECT_EQ(recorder.Boxes[0].Text, "Overflowin WidthBytes");
}
