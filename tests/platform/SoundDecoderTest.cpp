// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/sound/SoundDecoder.h"

#include <QFile>
#include <QtEndian>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr qsizetype headerSize = 54;

QByteArray dropFile() {
    QFile file(QStringLiteral(":/sounds/drop.aiff"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SoundDecoder, GivesEverySampleOfASound) {
    const QByteArray file = dropFile();
    const auto sound = decodedSound(file);
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->format.sampleRate(), 48000);
    EXPECT_EQ(sound->format.channelCount(), 1);
    EXPECT_EQ(sound->format.sampleFormat(), QAudioFormat::Int16);
    QByteArray expected(file.size() - headerSize, Qt::Uninitialized);
    qFromBigEndian<qint16>(file.constData() + headerSize, expected.size() / 2, expected.data());
    EXPECT_EQ(sound->samples, expected);
}

TEST(SoundDecoder, GivesNothingForWhatIsNoSound) {
    EXPECT_FALSE(decodedSound(""));
    EXPECT_FALSE(decodedSound("FORM"));
    EXPECT_FALSE(decodedSound("not an audio file at all, only a line of text"));
}

TEST(SoundDecoder, SurvivesAFileThatIsCutAnywhere) {
    const QByteArray file = dropFile();
    for (qsizetype size = 0; size < file.size(); size += size < 2 * headerSize ? 1 : 997) {
        const auto sound = decodedSound(file.first(size));
        EXPECT_TRUE(!sound || sound->samples.size() <= size) << size;
    }
}

TEST(SoundDecoder, BelievesNoCountOfFramesBeyondTenSeconds) {
    QByteArray file = dropFile();
    const QByteArray fileSize("\x7f\xff\xff\xff", 4);
    file.replace(4, 4, fileSize);
    file.replace(22, 4, fileSize);
    file.replace(42, 4, fileSize);
    const auto sound = decodedSound(file);
    EXPECT_TRUE(!sound || sound->samples.size() <= file.size());
}

} // namespace
} // namespace dropshade
