#include "simhost/TransactionLog.h"

#include "simhost/SimDocument.h"
#include "support/Error.h"

namespace simhost {

std::uint64_t TransactionLog::Start(const std::string& name) {
    open_.push_back(Frame{nextSerial_, name, {}, {}});
    return nextSerial_++;
}

TransactionLog::Frame TransactionLog::Pop(std::uint64_t serial, const char* what) {
    if (open_.empty() || open_.back().serial != serial)
        throw support::Error(support::errors::kFail, std::string("Cannot ") + what +
                                                         " a transaction that is not the innermost open one");
    Frame frame = std::move(open_.back());
    open_.pop_back();
    return frame;
}

void TransactionLog::End(std::uint64_t serial) {
    Frame frame = Pop(serial, "end");
    if (open_.empty()) {
        if (!frame.images.empty()) done_.push_back(std::move(frame));
        return;
    }
    Frame& outer = open_.back();
    for (auto& image : frame.images)
        if (outer.recorded.insert(image.doc.get()).second) outer.images.push_back(std::move(image));
}

void TransactionLog::Abort(std::uint64_t serial) {
    Frame frame = Pop(serial, "abort");
    Revert(frame);
}

void TransactionLog::Undo() {
    if (!open_.empty())
        throw support::Error(support::errors::kFail, "Cannot undo while a transaction is open");
    if (done_.empty()) throw support::Error(support::errors::kFail, "Nothing to undo");
    Frame frame = std::move(done_.back());
    done_.pop_back();
    Revert(frame);
}

void TransactionLog::Record(SimDocument& doc) {
    if (open_.empty()) return;
    Frame& frame = open_.back();
    if (frame.recorded.insert(&doc).second)
        frame.images.push_back(Image{doc.shared_from_this(), doc.Data(), doc.Dirty()});
}

std::string TransactionLog::LastName() const {
    return done_.empty() ? std::string() : done_.back().name;
}

void TransactionLog::Revert(Frame& frame) {
    for (auto it = frame.images.rbegin(); it != frame.images.rend(); ++it)
        it->doc->Restore(std::move(it->data), it->dirty);
}

}  // namespace simhost
