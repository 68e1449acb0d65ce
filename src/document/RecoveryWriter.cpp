#include "document/RecoveryWriter.h"

#include "document/RecoveryThread.h"

#include <utility>

RecoveryWriter::RecoveryWriter(RecoveryStore &store)
    : m_store(store)
{}

RecoveryWriter::~RecoveryWriter()
{
    if (m_thread != nullptr)
        m_thread->release();
}

RecoveryThread &RecoveryWriter::thread()
{
    if (m_thread == nullptr) {
        m_thread = std::make_shared<RecoveryThread>(*this);
        m_store.waitAtTheEndFor(m_thread);
    }
    return *m_thread;
}

void RecoveryWriter::keep(Kept kept) { thread().keep(std::move(kept)); }

void RecoveryWriter::remove(const QString &key) { thread().remove(key); }
