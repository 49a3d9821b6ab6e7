// The exception classes of the toolkit.
#ifndef VAMO_TOOLKIT_OBJECT_EXCEPTIONS_H_
#define VAMO_TOOLKIT_OBJECT_EXCEPTIONS_H_

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace vamo {

// The base of all exceptions of the toolkit. It says what went wrong but reports nothing.
class RuntimeException : public std::exception {
 public:
  RuntimeException() = default;
  explicit RuntimeException(std::string message, std::int64_t error_number = 0)
      : message_(std::move(message)), error_number_(error_number) {}

  virtual std::string_view ClassName() const { return "RuntimeException"; }
  const std::string& Message() const { return message_; }
  void SetMessage(std::string message) { message_ = std::move(message); }
  std::int64_t ErrorNumber() const { return error_number_; }
  // The cause, in addition to the message.
  const std::string& Reason() const { return reason_; }
  void SetReason(std::string reason) { reason_ = std::move(reason); }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
  std::string reason_;
  std::int64_t error_number_ = 0;
};

// A class name as a template argument.
template <std::size_t kSize>
struct ExceptionName {
  constexpr ExceptionName(const char (&name)[kSize]) {  // NOLINT(google-explicit-constructor)
    for (std::size_t i = 0; i < kSize; ++i) text[i] = name[i];
  }
  char text[kSize];
};

// An exception class that differs from its base only in its name.
template <ExceptionName kName>
class NamedException : public RuntimeException {
 public:
  using RuntimeException::RuntimeException;
  std::string_view ClassName() const override { return kName.text; }
};

using EndException = NamedException<"EndException">;
using FunctionNotFoundException = NamedException<"FunctionNotFoundException">;
using IOException = NamedException<"IOException">;
using IllegalCastException = NamedException<"IllegalCastException">;
using IllegalLockingException = NamedException<"IllegalLockingException">;
using InvalidArgumentException = NamedException<"InvalidArgumentException">;
using InvalidParentException = NamedException<"InvalidParentException">;
using KeyNotFoundException = NamedException<"KeyNotFoundException">;
using MenuHasParentException = NamedException<"MenuHasParentException">;
using NilObjectException = NamedException<"NilObjectException">;
using ObjCException = NamedException<"ObjCException">;
using OutOfBoundsException = NamedException<"OutOfBoundsException">;
using OutOfMemoryException = NamedException<"OutOfMemoryException">;
using PlatformNotSupportedException = NamedException<"PlatformNotSupportedException">;
using ServiceNotAvailableException = NamedException<"ServiceNotAvailableException">;
using StackOverflowException = NamedException<"StackOverflowException">;
using ThreadAccessingUIException = NamedException<"ThreadAccessingUIException">;
using ThreadAlreadyRunningException = NamedException<"ThreadAlreadyRunningException">;
using ThreadEndException = NamedException<"ThreadEndException">;
using TypeMismatchException = NamedException<"TypeMismatchException">;
using UnsupportedFormatException = NamedException<"UnsupportedFormatException">;
using UnsupportedOperationException = NamedException<"UnsupportedOperationException">;

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_EXCEPTIONS_H_
