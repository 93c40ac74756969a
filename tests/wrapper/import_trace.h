// Counts which functions of zorvic this program calls: while the trace lives, each entry of the program's import table
// leads through a few instructions that count the call and jump on.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "support/import_table.h"

class ImportTrace {
public:
    ImportTrace() {
        const auto imports = PeImage(GetModuleHandleW(nullptr)).ImportEntries("zorvic");
        thunks = static_cast<Thunk*>(
            VirtualAlloc(nullptr, imports.size() * sizeof(Thunk), MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
        for (const auto& [name, entry] : imports) {
            Thunk& thunk = thunks[names.size()];
            thunk.target = *entry;
            thunk.Encode();
            Redirect(entry, &thunk);
            names.push_back(name);
            entries.push_back(entry);
        }
    }
    ~ImportTrace() {
        for (std::size_t i = 0; i < names.size(); ++i) Redirect(entries[i], thunks[i].target);
        VirtualFree(thunks, 0, MEM_RELEASE);
    }
    ImportTrace(const ImportTrace&) = delete;
    ImportTrace& operator=(const ImportTrace&) = delete;

    // The names of the functions called since the last question, sorted, each as often as it was called. A name that is
    // decorated for C++ is shown without its decoration.
    std::string Calls() {
        std::string calls;
        for (std::size_t i = 0; i < names.size(); ++i)
            for (; thunks[i].count > 0; --thunks[i].count) {
                const std::string& name = names[i];
                calls += (calls.empty() ? "" : " ") + (name[0] == '?' ? name.substr(1, name.find('@') - 1) : name);
            }
        return calls;
    }

private:
    struct Thunk {
        BYTE code[12];
        std::uint32_t count;
        void* target;

        // inc dword [count]; jmp [target]. 64-bit code addresses both from the end of the instruction.
        void Encode() {
            Instruction(0, 0x05FF, &count);
            Instruction(6, 0x25FF, &target);
        }
        void Instruction(int at, std::uint16_t opcode, const void* operand) {
            const auto operandAddress = reinterpret_cast<std::uintptr_t>(operand);
            const auto end = reinterpret_cast<std::uintptr_t>(code + at + 6);
            const auto field = static_cast<std::uint32_t>(sizeof(void*) == 8 ? operandAddress - end : operandAddress);
            std::memcpy(code + at, &opcode, sizeof opcode);
            std::memcpy(code + at + 2, &field, sizeof field);
        }
    };

    std::vector<std::string> names;
    std::vector<void**> entries;
    Thunk* thunks;
};

// Tests that look at calls. The whole test is traced, because the compiler may read the import table once for many calls.
class TracedTest : public testing::Test {
protected:
    ImportTrace trace;
};
