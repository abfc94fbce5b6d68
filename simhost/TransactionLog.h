#pragma once
#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "simhost/DocData.h"

namespace simhost {

// The host's undo: while a transaction is open, each document keeps a copy of its data
// as it was before its first change; ending the transaction files those copies as one
// undo step, aborting puts them back at once. Transactions nest: an inner one that ends
// folds into the outer one.
class TransactionLog {
public:
    std::uint64_t Start(const std::string& name);
    void End(std::uint64_t serial);
    void Abort(std::uint64_t serial);
    void Undo();  // reverts the last ended transaction; throws when there is none
    bool Recording() const { return !open_.empty(); }
    // Called by a document before it changes.
    void Record(SimDocument& doc);
    std::string LastName() const;

private:
    struct Image {
        SimDocumentPtr doc;
        DocData data;
        bool dirty;
    };
    struct Frame {
        std::uint64_t serial;
        std::string name;
        std::vector<Image> images;
        std::unordered_set<const SimDocument*> recorded;
    };
    Frame Pop(std::uint64_t serial, const char* what);
    static void Revert(Frame& frame);

    std::vector<Frame> open_;
    std::vector<Frame> done_;
    std::uint64_t nextSerial_ = 1;
};

}  // namespace simhost
