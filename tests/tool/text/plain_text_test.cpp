#include "text/plain_text.h"

#include <gtest/gtest.h>

namespace tool {
namespace {

TEST(PlainText, LinesHaveAtMostTheWidth) {
  EXPECT_EQ(plain_text("one two three", 7), "one two\nthree\n");
  EXPECT_EQ(plain_text("one two three", 6), "one\ntwo\nthree\n");
}

TEST(PlainText, ALongerWordHasALineOfItsOwn) {
  EXPECT_EQ(plain_text("a touchstone b", 5), "a\ntouchstone\nb\n");
  EXPECT_EQ(plain_text("touchstone", 5), "touchstone\n");
}

TEST(PlainText, LinesOfAParagraphAreJoined) {
  EXPECT_EQ(plain_text("one\ntwo\n\nthree\n", 80), "one two\n\nthree\n");
}

TEST(PlainText, ItemsStandBelowEachOtherWithoutBlankLines) {
  EXPECT_EQ(plain_text("list:\n\n- one\n- two\n\nend", 80), "list:\n\n  - one\n  - two\n\nend\n");
  EXPECT_EQ(plain_text("list:\n- one", 80), "list:\n\n  - one\n");
}

TEST(PlainText, ItemsHangBelowTheirText) {
  EXPECT_EQ(plain_text("- one two\n  three", 11), "  - one two\n    three\n");
  EXPECT_EQ(plain_text("- touchstone", 8), "  - touchstone\n");
}

TEST(PlainText, CodeIsQuotedAndNeverBroken) {
  EXPECT_EQ(plain_text("a `b c d`, e", 6), "a\n\"b c d\",\ne\n");
}

TEST(PlainText, OfALinkItsTextStays) {
  EXPECT_EQ(plain_text("see [E2003](E2003.md), [a b](c) or `[End]`", 80),
            "see E2003, a b or \"[End]\"\n");
}

TEST(PlainText, WhatIsNoWholeLinkStays) {
  EXPECT_EQ(plain_text("a](b", 80), "a](b\n");
  EXPECT_EQ(plain_text("a](b)", 80), "a](b)\n");
}

TEST(PlainText, OfNothingIsNothing) { EXPECT_EQ(plain_text("\n \n", 80), ""); }

}  // namespace
}  // namespace tool
