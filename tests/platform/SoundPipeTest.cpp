// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/sound/SoundPipe.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

TEST(SoundPipe, GivesAFileThatCameInPieces) {
    const QByteArray frame = framedSound("a sound");
    SoundPipe pipe;
    for (qsizetype index = 0; index + 1 < frame.size(); ++index) {
        pipe.append(QByteArrayView(frame).sliced(index, 1));
        EXPECT_EQ(pipe.takeLast(), std::nullopt);
    }
    pipe.append(QByteArrayView(frame).last(1));
    EXPECT_EQ(pipe.takeLast(), QByteArray("a sound"));
    EXPECT_EQ(pipe.takeLast(), std::nullopt);
}

TEST(SoundPipe, DropsFilesThatHaveBeenOvertaken) {
    SoundPipe pipe;
    pipe.append(framedSound("first") + framedSound("second") + framedSound("third").chopped(1));
    EXPECT_EQ(pipe.takeLast(), QByteArray("second"));
    pipe.append("d");
    EXPECT_EQ(pipe.takeLast(), QByteArray("third"));
}

TEST(SoundPipe, KeepsAnEmptyFileAndZeroBytes) {
    SoundPipe pipe;
    pipe.append(framedSound(""));
    EXPECT_EQ(pipe.takeLast(), QByteArray(""));
    const QByteArray zeros(5, '\0');
    pipe.append(framedSound(zeros));
    EXPECT_EQ(pipe.takeLast(), zeros);
}

TEST(SoundPipe, GivesUpOnAFrameOfImpossibleLength) {
    SoundPipe pipe;
    pipe.append(framedSound("good") + QByteArray("\xff\xff\xff\xff") + framedSound("lost"));
    EXPECT_EQ(pipe.takeLast(), QByteArray("good"));
    EXPECT_TRUE(pipe.isBroken());
    EXPECT_EQ(pipe.takeLast(), std::nullopt);
}

TEST(SoundPipe, TakesTheLongestFrameAllowed) {
    SoundPipe pipe;
    pipe.append(framedSound(QByteArray(SoundPipe::mostBytes, 'x')));
    EXPECT_FALSE(pipe.isBroken());
    EXPECT_EQ(pipe.takeLast().value_or(QByteArray()).size(), SoundPipe::mostBytes);
}

} // namespace
} // namespace dropshade
