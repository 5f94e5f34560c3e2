#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Pipeline;          // libqpdf's
class QPDFObjectHandle;  // likewise

namespace host {

/// Writes the objects of a PDF file one after the other, and keeps of each nothing but
/// where it lies: libqpdf's own writer holds all of them until the file is complete, and
/// a file may have thousands of pages. Small objects are packed together.
class PdfObjects {
public:
    /// Takes the bytes of a file, piece by piece.
    using Sink = std::function<void(const std::vector<std::uint8_t>&)>;

    /// @param sink throws where it cannot take a piece, which goes through all calls
    explicit PdfObjects(const Sink& sink);
    PdfObjects(const PdfObjects&) = delete;
    PdfObjects& operator=(const PdfObjects&) = delete;
    ~PdfObjects();

    /// A number for an object that is written later.
    int Reserve();

    /// What others say in place of an object: "12 0 R". Objects that are written refer to
    /// others by nothing else.
    static QPDFObjectHandle Reference(int number);

    void Write(int number, QPDFObjectHandle object);
    /// @return its number
    int Write(const QPDFObjectHandle& object);

    /// Streams; `entries` are those of the dictionary but length and filter.
    int WritePlain(const QPDFObjectHandle& entries, const std::string& bytes);
    int WritePacked(const QPDFObjectHandle& entries, const std::string& bytes);

    using Fill = std::function<void(Pipeline&)>;
    /// @param entries with the filter that the bytes have gone through
    /// @param fill writes `length` bytes; std::runtime_error is thrown where it does not
    int WriteRaw(const QPDFObjectHandle& entries, std::size_t length, const Fill& fill);

    /// Ends the file, whose identifier follows from what it holds. Nothing can be written
    /// after that.
    void Finish(int catalogue, int about);

private:
    class Output;
    /// Where an object lies: at an offset, or as which of the objects packed in another.
    struct Place {
        std::uint64_t where = 0;
        std::uint16_t index = 0;
        bool isPacked = false;
    };

    Place& At(int number) { return m_places[static_cast<std::size_t>(number) - 1]; }
    void WritePacked(int number, QPDFObjectHandle entries, const std::string& bytes);
    void WriteRaw(int number, QPDFObjectHandle entries, std::size_t length,
                  const Fill& fill);
    void WritePack();
    std::string Places() const;

    std::unique_ptr<Output> m_output;
    std::vector<Place> m_places;  // by number, from 1
    int m_pack = 0;               // the number of the objects packed together; 0: none
    std::size_t m_packCount = 0;
    std::string m_packNumbers;
    std::string m_packObjects;
};

}  // namespace host
