// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/sound/SoundPipe.h"

#include <QtEndian>

namespace dropshade {

namespace {

constexpr qsizetype headSize = sizeof(quint32);

} // namespace

QByteArray framedSound(QByteArrayView file) {
    QByteArray frame(headSize, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(file.size()), frame.data());
    return frame.append(file);
}

std::optional<QByteArray> SoundPipe::takeLast() {
    std::optional<QByteArray> last;
    while (m_pending.size() >= headSize && !isBroken()) {
        const qsizetype size = qFromBigEndian<quint32>(m_pending.constData());
        if (m_pending.size() < headSize + size)
            break;
        last = m_pending.mid(headSize, size);
        m_pending.remove(0, headSize + size);
    }
    return last;
}

bool SoundPipe::isBroken() const {
    return m_pending.size() >= headSize &&
           qFromBigEndian<quint32>(m_pending.constData()) > mostBytes;
}

} // namespace dropshade
