// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/FolderTransport.h"

#include "platform/linux/FolderWorker.h"

namespace dropshade {
namespace {

constexpr unsigned long longestFarewellMilliseconds = 2000;

} // namespace

FolderTransport::FolderTransport(const QString& folder)
    : m_thread(std::make_unique<QThread>()), m_worker(new FolderWorker(folder)) {
    m_worker->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &FolderWorker::ready, this, &ReplicaTransport::ready);
    connect(m_worker, &FolderWorker::remoteIsNew, this, &ReplicaTransport::remoteIsNew);
    connect(m_worker, &FolderWorker::received, this, &ReplicaTransport::received);
    connect(m_worker, &FolderWorker::listed, this, &ReplicaTransport::listed);
    connect(m_worker, &FolderWorker::caughtUp, this, &ReplicaTransport::caughtUp);
    connect(m_worker, &FolderWorker::foundCopy, this, &ReplicaTransport::foundCopy);
    connect(m_worker, &FolderWorker::sendEnded, this, &ReplicaTransport::sendEnded);
    connect(m_worker, &FolderWorker::troubleDidChange, this, &ReplicaTransport::troubleDidChange);
    m_thread->start();
}

FolderTransport::~FolderTransport() {
    disconnect(m_worker, nullptr, this, nullptr);
    m_thread->quit();
    // A file system that hangs must not hang the program.
    if (!m_thread->wait(longestFarewellMilliseconds))
        static_cast<void>(m_thread.release());
}

void FolderTransport::start(const QByteArray& cursor) {
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, cursor] { worker->start(cursor); });
}

void FolderTransport::send(const QList<OutgoingEntry>& entries) {
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, entries] { worker->send(entries); });
}

void FolderTransport::discardCopy(const QString& name) {
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, name] { worker->discardCopy(name); });
}

bool FolderTransport::supersedes(const QByteArray& version, const QByteArray& known) const {
    // A file has no history: what is there now is the news.
    return version != known;
}

} // namespace dropshade
