/**
 * The support library, libquarn_util.so.2: error context, memory, streams, big integers, bit sets,
 * calendar times, Unicode strings, JSON values and text encodings.
 *
 * What holds for every function, unless its own text says otherwise:
 *
 *  - An int result is 1 for success. Anything else is failure; compare with 1.
 *  - A function that makes an object returns null when it fails. The object belongs to the caller,
 *    who gives it to the free function of its kind. Free functions accept null.
 *  - Buffers that a function hands out through a pointer are freed with quarn_free().
 *  - Out pointers for counts may be null. Any other null argument makes the call fail.
 *  - An error context may always be null. Where one is given, each failure puts one record into it.
 *  - Counts are octets. A negative count is refused.
 *  - Nothing is shared between calls: distinct objects may be used by several threads at once, one
 *    object by one thread at a time. Functions whose object is const may run on one object at once.
 *  - No function throws, aborts, or touches locale, signals or errno-based state of the caller.
 */
#ifndef QUARN_UTIL_H
#define QUARN_UTIL_H

#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define QUARN_UTIL_API __attribute__((visibility("default")))
#else
#define QUARN_UTIL_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Error context -------------------------------------------------------------------------- */

/** General error codes; quarn_igetGeneralError() has their texts. */
enum quarn_general_error {
  QUARN_ERROR_NO_MEMORY = 0x10000, /**< memory could not be allocated */
  QUARN_ERROR_RANGE = 0x10001,     /**< a length or count is out of range */
  QUARN_ERROR_ARGUMENT = 0x10002,  /**< an argument is null or otherwise bad */
  QUARN_ERROR_FORMAT = 0x10003,    /**< text or octets do not have the form asked for */
  QUARN_ERROR_COUNT = 0x10004,     /**< the octets written differ from the declared length */
  QUARN_ERROR_RECURSION = 0x10008  /**< deeper than quarn_get_recursive_level(); never recorded */
};

/** Stream error codes; quarn_igetStreamError() has their texts. */
enum quarn_stream_error {
  QUARN_STREAM_ERROR_OPEN = 0x10100,      /**< the file cannot be opened */
  QUARN_STREAM_ERROR_READ = 0x10101,      /**< reading failed */
  QUARN_STREAM_ERROR_WRITE = 0x10102,     /**< writing failed */
  QUARN_STREAM_ERROR_END = 0x10103,       /**< the stream ends before the octets asked for */
  QUARN_STREAM_ERROR_READONLY = 0x10104,  /**< the stream cannot be written */
  QUARN_STREAM_ERROR_OPERATION = 0x10105, /**< unknown operation or mode */
  QUARN_STREAM_ERROR_POSITION = 0x10106,  /**< the position lies outside the stream */
  QUARN_STREAM_ERROR_SEEK = 0x10107,      /**< the stream cannot seek */
  QUARN_STREAM_ERROR_KIND = 0x10108,      /**< the operation needs a memory stream */
  QUARN_STREAM_ERROR_REWIND = 0x10109,    /**< the stream cannot be rewound */
  QUARN_STREAM_ERROR_LENGTH = 0x10114,    /**< the stream cannot tell its length */
  QUARN_STREAM_ERROR_NOTATEND = 0x10116   /**< the stream gives no octets and is not at its end */
};

/** A sink of error records. */
typedef struct quarn_err_ctx quarn_err_ctx;

/** One failure: who reported it (source unit and line), its code, and the code's text. */
typedef struct quarn_err_record {
  const char *file;    /**< source unit; static text */
  int line;            /**< line in that unit; informative */
  int code;            /**< error code */
  const char *message; /**< text of the code; static, never null */
} quarn_err_record;

/** Makes an empty error context. Null only when memory is short. */
QUARN_UTIL_API quarn_err_ctx *quarn_err_ctx_new(void);
/** Releases a context and its records. */
QUARN_UTIL_API void quarn_err_ctx_free(quarn_err_ctx *ctx);

/**
 * Appends one record. The texts are kept by pointer and must outlive the context.
 *
 * A context holds at most 1024 records, so that hostile input cannot fill memory with them; what
 * follows is counted (quarn_err_ctx_dropped()) and not kept.
 *
 * @return 1, also for a null context; 0 when memory is short
 */
QUARN_UTIL_API int quarn_err_ctx_put(
    quarn_err_ctx *ctx, const char *file, int line, int code, const char *message);

/** As quarn_err_ctx_put(), with the input offset where the failure was noticed, -1 if unknown. */
QUARN_UTIL_API int quarn_err_ctx_put_at(
    quarn_err_ctx *ctx, const char *file, int line, int code, const char *message, int64_t offset);

/** Number of records held; 0 for null. */
QUARN_UTIL_API size_t quarn_err_ctx_count(const quarn_err_ctx *ctx);
/** Number of records that were not kept because the context was full; 0 for null. */
QUARN_UTIL_API size_t quarn_err_ctx_dropped(const quarn_err_ctx *ctx);
/** Record number index, oldest first; borrowed until the context changes; null past the end. */
QUARN_UTIL_API const quarn_err_record *quarn_err_ctx_get(const quarn_err_ctx *ctx, size_t index);
/** Input offset of record number index, from the first octet its codec read; -1 if unknown. */
QUARN_UTIL_API int64_t quarn_err_ctx_offset(const quarn_err_ctx *ctx, size_t index);
/**
 * Puts one step in front of the path of components in which a failure lies. Decoders and encoders
 * of structured values do this on their way out: "extnValue", then 3, then "extensions".
 *
 * @param name   of the component; null for an element of a list
 * @param index  of the element, counted from 0
 * @param first  not 0: this is the innermost step, and a path from an earlier failure is forgotten
 * @return 1, also for a null context
 */
QUARN_UTIL_API int quarn_err_ctx_put_step(quarn_err_ctx *ctx,
                                          const char *name,
                                          int64_t index,
                                          int first);
/** The path of the latest failure that lay in a component: "extensions[3].extnValue". Beyond 256
 * octets the outer steps are left out and "..." stands for them. Empty when there is none, and for
 * null. Borrowed until the context changes. */
QUARN_UTIL_API const char *quarn_err_ctx_path(const quarn_err_ctx *ctx);
/** Removes all records and the path. */
QUARN_UTIL_API void quarn_err_ctx_clear(quarn_err_ctx *ctx);

/**
 * Writes the chain of records as text, one line each, innermost failure first:
 * "QUARN_ASN1_Oid:120: 0x10203 Bad length (offset 14)".
 *
 * @param text    receives NUL-terminated text, freed with quarn_free()
 * @param length  receives its length without the NUL; may be null
 */
QUARN_UTIL_API int quarn_err_ctx_print(const quarn_err_ctx *ctx, char **text, size_t *length);

/** Text of a general code; an empty string for any other code, never null. Static. */
QUARN_UTIL_API const char *quarn_igetGeneralError(int code);
/** Text of a stream code; an empty string for any other code, never null. Static. */
QUARN_UTIL_API const char *quarn_igetStreamError(int code);

/** The greatest nesting depth that recursive decoders accept: 128. */
QUARN_UTIL_API int quarn_get_recursive_level(void);

/** Version of the support library, for example "2.0.0". Static. */
QUARN_UTIL_API const char *quarn_util_version(void);

/* ---- Memory ---------------------------------------------------------------------------------- */

/**
 * Replaces the functions that allocate and release all memory of both libraries.
 *
 * Process-wide; call it before any other function of either library and not while objects live.
 * allocate(size) returns memory aligned for any object, or null; release() accepts what allocate()
 * returned. Null for either restores malloc and free.
 */
QUARN_UTIL_API void quarn_mem_set_functions(void *(*allocate)(size_t), void (*release)(void *));

/** Uninitialised memory of size octets (at least 1), or null. file and line name the caller. */
QUARN_UTIL_API void *quarn_malloc(size_t size, const char *file, int line);
/** Releases memory from quarn_malloc() or handed out by either library. */
QUARN_UTIL_API void quarn_free(void *p);

/** Octets and their count. data may be null when length is 0. */
typedef struct quarn_data_blob {
  uint8_t *data;
  int64_t length;
} quarn_data_blob;

/** New blob with a copy of the octets. A null pointer is accepted with count 0. */
QUARN_UTIL_API quarn_data_blob *quarn_data_blob_new(const uint8_t *octets, int64_t count);
/** New blob with the whole content of a file; "-" is the standard input. */
QUARN_UTIL_API quarn_data_blob *quarn_data_blob_fromfile(const char *path, quarn_err_ctx *ctx);
/** New blob around octets that quarn_malloc() gave or either library handed out, without copying
 * them. The blob takes them over; when it cannot be made they stay the caller's. */
QUARN_UTIL_API quarn_data_blob *quarn_data_blob_adopt(uint8_t *octets, int64_t count);
/** Releases a blob and its octets. */
QUARN_UTIL_API void quarn_data_blob_free(quarn_data_blob *blob);

/* ---- Streams --------------------------------------------------------------------------------- */

/** Octets with a read position, which starts at 0. Writing always appends and does not move it. */
typedef struct quarn_stream quarn_stream;

/** Kinds of stream, as quarn_stream_gettype() returns them. */
enum quarn_stream_kind {
  QUARN_STREAM_MEMORY = 0x20001,  /**< growable, read-only and duplicated memory streams */
  QUARN_STREAM_FILE = 0x20002,    /**< a file */
  QUARN_STREAM_CALLBACK = 0x20003 /**< functions of the caller */
};

/** Operations of quarn_stream_ctrl(). */
enum quarn_stream_operation {
  QUARN_STREAM_REWIND = 1, /**< set the read position to 0; the argument is ignored */
  QUARN_STREAM_LENGTH = 2, /**< store the length through a uint64_t *; all ones when unknown */
  QUARN_STREAM_SEEK = 8,   /**< set the read position to the uint64_t pointed to, 0 to the length */
  QUARN_STREAM_ATEND = 11  /**< succeed only when the read position is at the end */
};

/** Functions of a callback stream. user is handed through unchanged. */
typedef struct quarn_stream_callbacks {
  /** Octets read, at most count; 0 at the end; -1 on failure. Null: not readable. */
  int64_t (*read)(void *user, void *buffer, int64_t count);
  /** 1 on success. Null: not writable. */
  int (*write)(void *user, const void *buffer, int64_t count);
  /** Total octets, -1 unknown. Null: unknown. */
  int64_t (*length)(void *user);
  /** 1 on success. Null: cannot seek or rewind. */
  int (*seek)(void *user, uint64_t position);
  /** Called once, when the stream is freed. May be null. */
  void (*close)(void *user);
} quarn_stream_callbacks;

/** New growable memory stream, empty. The capacity is a hint for what the first write allocates. */
QUARN_UTIL_API quarn_stream *quarn_stream_new_mem(int64_t initial_capacity, quarn_err_ctx *ctx);

/**
 * New read-only memory stream over existing octets, positioned at the first.
 *
 * @param octets  may be null when count is 0
 * @param flag    0: the octets are read in place and must outlive the stream and its duplicates;
 *                1: the stream keeps a copy of its own
 */
QUARN_UTIL_API quarn_stream *quarn_stream_new_romem(const uint8_t *octets,
                                                    int64_t count,
                                                    int flag,
                                                    quarn_err_ctx *ctx);

/** New stream over functions of the caller. The table is copied. Reads are not buffered. */
QUARN_UTIL_API quarn_stream *quarn_stream_new_callback(const quarn_stream_callbacks *callbacks,
                                                       void *user,
                                                       quarn_err_ctx *ctx);

/**
 * New stream over a file.
 *
 * @param path  "-" is the standard input or output
 * @param mode  "r" to read, "w" to create or empty and then write. A pipe has no length and cannot
 *              seek. Writes are buffered; quarn_stream_flush() tells whether they arrived.
 */
QUARN_UTIL_API quarn_stream *quarn_stream_new_file(const char *path,
                                                   const char *mode,
                                                   quarn_err_ctx *ctx);

/** Releases a stream; its buffer too unless detached or still held by a duplicate. */
QUARN_UTIL_API void quarn_stream_free(quarn_stream *s);

/** Reads exactly count octets. Fewer available is a failure with one record; a memory stream then
 * keeps its position. */
QUARN_UTIL_API int quarn_stream_readn(quarn_stream *s,
                                      void *buffer,
                                      int64_t count,
                                      quarn_err_ctx *ctx);

/** Reads at most count octets; count_read receives how many. At the end it succeeds with 0. */
QUARN_UTIL_API int quarn_stream_read(
    quarn_stream *s, void *buffer, int64_t count, uint64_t *count_read, quarn_err_ctx *ctx);

/** Writes exactly count octets. A read-only stream refuses with one record. */
QUARN_UTIL_API int quarn_stream_writen(quarn_stream *s,
                                       const void *buffer,
                                       int64_t count,
                                       quarn_err_ctx *ctx);

/** Copies the rest of source into destination. copied receives the number of octets copied. */
QUARN_UTIL_API int quarn_stream_writefromstream(quarn_stream *destination,
                                                quarn_stream *source,
                                                quarn_err_ctx *ctx,
                                                uint64_t *copied);

/** Performs an operation of quarn_stream_operation; an unknown one fails with 0x10105.
 * QUARN_STREAM_ATEND records nothing. */
QUARN_UTIL_API int quarn_stream_ctrl(quarn_stream *s,
                                     int operation,
                                     void *argument,
                                     quarn_err_ctx *ctx);

/** The stream's kind, a value of quarn_stream_kind; 0 for null. */
QUARN_UTIL_API uint32_t quarn_stream_gettype(const quarn_stream *s);

/** The read position: octets from the start of the stream to the next one read. 0 for null. */
QUARN_UTIL_API uint64_t quarn_stream_position(const quarn_stream *s);

/** Moves the read position forward by exactly count octets, without reading where it can. */
QUARN_UTIL_API int quarn_stream_skip(quarn_stream *s, uint64_t count, quarn_err_ctx *ctx);

/** Hands buffered writes of a file stream to the system; 1 at once for other kinds. */
QUARN_UTIL_API int quarn_stream_flush(quarn_stream *s, quarn_err_ctx *ctx);

/**
 * A new read-only stream over the octets that a memory stream holds now, positioned at the start.
 *
 * The buffer is shared and counted: it stays valid whatever happens to the original, and later
 * writes to the original do not show. Other kinds give null without a record: the sign to rewind
 * instead.
 */
QUARN_UTIL_API quarn_stream *quarn_memstream_dup_readonly(quarn_stream *s, quarn_err_ctx *ctx);

/**
 * Hands a growable memory stream's buffer to the caller, who frees it with quarn_free(). The stream
 * is empty afterwards and must still be freed. An empty stream gives a null pointer and 0.
 */
QUARN_UTIL_API int quarn_memstreamdeatch(quarn_stream *s, uint8_t **octets, uint64_t *count);

/**
 * Lends the unread octets of a memory stream, in place and without moving the position.
 *
 * @param octets  receives a pointer that is valid until the stream is written, detached or freed
 * @param count   receives the number of octets from the read position to the end
 * @return 1, or 0 without a record when the stream is not a memory stream
 */
QUARN_UTIL_API int quarn_memstream_peek(const quarn_stream *s,
                                        const uint8_t **octets,
                                        uint64_t *count);

/**
 * Lends room for appending to a growable memory stream in place; quarn_memstream_commit() makes
 * what was written there part of the stream.
 *
 * @param count  octets of room wanted
 * @param room   receives a pointer to at least count octets, valid until the stream's next call
 * @param size   receives how many octets of room there are
 * @return 1; 0 without a record when the stream is not a growable memory stream, with a record when
 *         memory is short
 */
QUARN_UTIL_API int quarn_memstream_reserve(
    quarn_stream *s, uint64_t count, uint8_t **room, uint64_t *size, quarn_err_ctx *ctx);

/** Appends the first count octets of the room lent last. 0 when count is more than was lent. */
QUARN_UTIL_API int quarn_memstream_commit(quarn_stream *s, uint64_t count);

/* ---- Big integers ---------------------------------------------------------------------------- */

/** A signed integer of any size. */
typedef struct quarn_biginteger quarn_biginteger;

/** From big-endian two's complement octets, at least one; need not be minimal. */
QUARN_UTIL_API quarn_biginteger *quarn_biginteger_newdata(const uint8_t *octets,
                                                          int64_t count,
                                                          quarn_err_ctx *ctx);
/** From a big-endian unsigned magnitude, at least one octet. */
QUARN_UTIL_API quarn_biginteger *quarn_biginteger_newunsigneddata(const uint8_t *octets,
                                                                  int64_t count,
                                                                  quarn_err_ctx *ctx);
/** From decimal text: at most 1,000,000 digits after an optional '-'; nothing else is accepted. */
QUARN_UTIL_API quarn_biginteger *quarn_biginteger_newdec(const char *text, quarn_err_ctx *ctx);
/** The two's complement octets of the minimal encoding, as a new blob. */
QUARN_UTIL_API quarn_data_blob *quarn_biginteger_getdata(const quarn_biginteger *b);
/** The decimal text, NUL-terminated. Fails above 3,321,936 bits, which are a million digits. */
QUARN_UTIL_API int quarn_biginteger_todec(const quarn_biginteger *b, char **text, size_t *length);
/** Bits of the magnitude: 0 for 0, 1 for 1 and -1, 8 for 255; -1 for null. */
QUARN_UTIL_API int64_t quarn_biginteger_getbitcount(const quarn_biginteger *b);
/** -1, 0 or 1; 0 for null. */
QUARN_UTIL_API int quarn_biginteger_getsign(const quarn_biginteger *b);
/** Negates in place. */
QUARN_UTIL_API int quarn_biginteger_neg(quarn_biginteger *b);
/** The magnitude, big-endian, with zeros on the left to fill size octets, which it must fit. */
QUARN_UTIL_API int quarn_biginteger_unsigned_tonbuf(const quarn_biginteger *b,
                                                    uint8_t *buffer,
                                                    int64_t size);
QUARN_UTIL_API void quarn_biginteger_free(quarn_biginteger *b); /**< releases a big integer */

/* ---- Bit sets -------------------------------------------------------------------------------- */

/** Bits numbered from 0, the top bit of the first octet, with an explicit count. */
typedef struct quarn_bitset quarn_bitset;

/** From octets, null for none, less the last unused_bits (0 to 7) bits, which need an octet. */
QUARN_UTIL_API quarn_bitset *quarn_bitset_new(uint32_t unused_bits,
                                              const uint8_t *octets,
                                              int64_t length);
/** A set of no bits. */
QUARN_UTIL_API quarn_bitset *quarn_bitset_empty(void);
/** Sets bit n, growing the set when n lies beyond its count. */
QUARN_UTIL_API int quarn_bitset_set(quarn_bitset *b, int64_t n);
/** 1 when bit n is set; 0 also for a null set, a negative n and an n beyond the count. */
QUARN_UTIL_API int quarn_bitset_isset(const quarn_bitset *b, int64_t n);
/** Number of bits, set or not; 0 for null. */
QUARN_UTIL_API int64_t quarn_bitset_getcount(const quarn_bitset *b);
/** The octets as a new blob, trailing zero bits included; unused_bits receives 0 to 7. */
QUARN_UTIL_API quarn_data_blob *quarn_bitset_getdata(const quarn_bitset *b, uint32_t *unused_bits);
QUARN_UTIL_API void quarn_bitset_free(quarn_bitset *b); /**< releases a bit set */

/* ---- Times ----------------------------------------------------------------------------------- */

/** Calendar fields of the proleptic Gregorian calendar. */
typedef struct quarn_time_fields {
  int year;        /**< 1582 to 9999 */
  int month;       /**< 1 to 12 */
  int day;         /**< 1 to 31, within the month */
  int hour;        /**< 0 to 23 */
  int minute;      /**< 0 to 59 */
  int second;      /**< 0 to 60; 60 is kept as given, leap second or not */
  int nanoseconds; /**< 0 to 999999999 */
} quarn_time_fields;

/** 1 when every field lies in its range and the date exists. */
QUARN_UTIL_API int quarn_time_fields_valid(const quarn_time_fields *fields);
/** Moves valid fields by minutes, also back. Leaving 1582 to 9999 fails and changes nothing. */
QUARN_UTIL_API int quarn_time_fields_addminutes(quarn_time_fields *fields, int64_t minutes);
/** Moves valid fields by whole days; as quarn_time_fields_addminutes(). */
QUARN_UTIL_API int quarn_time_fields_adddays(quarn_time_fields *fields, int64_t days);
/** Turns fields of the local time zone (TZ) into UTC in place, daylight saving as in mktime(). */
QUARN_UTIL_API int quarn_time_fields_localtoutc(quarn_time_fields *fields);
/** 1 when UTC fields name one of the leap seconds inserted from 1972 to 2016. */
QUARN_UTIL_API int quarn_time_fields_isleapsecond(const quarn_time_fields *fields);

/** An instant in UTC. */
typedef struct quarn_time quarn_time;

/** From fields in UTC; null when quarn_time_fields_valid() would refuse them. */
QUARN_UTIL_API quarn_time *quarn_time_newutctime(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds);
/** From fields in the process's local time zone; holds the UTC instant. */
QUARN_UTIL_API quarn_time *quarn_time_newlocaltime(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds);
QUARN_UTIL_API quarn_time *quarn_time_dup(const quarn_time *t); /**< a copy; null for null */
QUARN_UTIL_API void quarn_time_free(quarn_time *t);             /**< releases a time */
/** The year in UTC; 0 for null, as from the getters that follow. */
QUARN_UTIL_API int quarn_time_getyear(const quarn_time *t);
QUARN_UTIL_API int quarn_time_getmonth(const quarn_time *t);  /**< 1 to 12 */
QUARN_UTIL_API int quarn_time_getday(const quarn_time *t);    /**< 1 to 31 */
QUARN_UTIL_API int quarn_time_gethour(const quarn_time *t);   /**< 0 to 23 */
QUARN_UTIL_API int quarn_time_getminute(const quarn_time *t); /**< 0 to 59 */
QUARN_UTIL_API int quarn_time_getsecond(const quarn_time *t); /**< 0 to 60 */
QUARN_UTIL_API int quarn_time_getns(const quarn_time *t);     /**< nanoseconds, 0 to 999999999 */
/** 1: every time object is in UTC; 0 for null. */
QUARN_UTIL_API int quarn_time_isutctime(const quarn_time *t);
/** 1 when the instant is one of the leap seconds inserted from 1972 to 2016. */
QUARN_UTIL_API int quarn_time_isleapsecond(const quarn_time *t);
/** Moves the time by whole days, in place. Leaving 1582 to 9999 fails and changes nothing. */
QUARN_UTIL_API int quarn_time_addday(quarn_time *t, int64_t days);
/** Moves the time by minutes, in place; as quarn_time_addday(). */
QUARN_UTIL_API int quarn_time_addminute(quarn_time *t, int64_t minutes);

/* ---- Unicode strings ------------------------------------------------------------------------- */

/** A sequence of Unicode scalar values. The octets it is made from may be null for none. */
typedef struct quarn_ustring quarn_ustring;

/** From UTF-8; overlong forms, surrogates and values above U+10FFFF are refused, U+0000 is not. */
QUARN_UTIL_API quarn_ustring *quarn_ustring_newutf8(const uint8_t *octets, int64_t count);
/** From UCS-2, big-endian; an odd count and surrogates are refused. */
QUARN_UTIL_API quarn_ustring *quarn_ustring_newbmp(const uint8_t *octets, int64_t count);
/** From UCS-4, big-endian; a count that is not a multiple of 4, surrogates and values above
 * U+10FFFF are refused. */
QUARN_UTIL_API quarn_ustring *quarn_ustring_newutf32be(const uint8_t *octets, int64_t count);
/** The octets, freed with quarn_free(); a NUL that the count leaves out follows them. */
QUARN_UTIL_API int quarn_ustring_toutf8(const quarn_ustring *u, uint8_t **octets, int64_t *count);
/** As UCS-2, big-endian; fails for a character above U+FFFF. */
QUARN_UTIL_API int quarn_ustring_tobmp(const quarn_ustring *u, uint8_t **octets, int64_t *count);
/** As UCS-4, big-endian. */
QUARN_UTIL_API int quarn_ustring_toutf32be(const quarn_ustring *u,
                                           uint8_t **octets,
                                           int64_t *count);
/** 1 when the octets are valid UTF-8, by the rule of quarn_ustring_newutf8(). */
QUARN_UTIL_API int quarn_utf8_valid(const uint8_t *octets, int64_t count);
QUARN_UTIL_API void quarn_ustring_free(quarn_ustring *u); /**< releases a string */

/* ---- JSON values ----------------------------------------------------------------------------- */

/** A JSON value. Handles stay valid while their root lives; children belong to their parent. */
typedef struct quarn_json quarn_json;

/** Kinds of JSON value. */
enum quarn_json_kind {
  QUARN_JSON_NULL = 1,
  QUARN_JSON_BOOLEAN = 2,
  QUARN_JSON_NUMBER = 3,
  QUARN_JSON_STRING = 4,
  QUARN_JSON_ARRAY = 5,
  QUARN_JSON_OBJECT = 6
};

QUARN_UTIL_API quarn_json *quarn_json_newnull(void);   /**< a null */
QUARN_UTIL_API quarn_json *quarn_json_newobject(void); /**< an object without members */
QUARN_UTIL_API quarn_json *quarn_json_newarray(void);  /**< an array without items */
/** From UTF-8 text, which is copied; null when it is not valid UTF-8. U+0000 is accepted. */
QUARN_UTIL_API quarn_json *quarn_json_newstring(const char *text, uint32_t length);
/** From a finite number; null for NaN and infinities, which JSON cannot write. */
QUARN_UTIL_API quarn_json *quarn_json_newnumber(double value);
/** True when value is not 0. */
QUARN_UTIL_API quarn_json *quarn_json_newboolean(int value);

/** Appends a member to an object, which takes the value over. On failure the value stays the
 * caller's. A key that the object has already, a value that has a parent, and an object put into
 * itself are refused. The key is copied. */
QUARN_UTIL_API int quarn_json_addobjectitem(quarn_json *object,
                                            const char *key,
                                            uint32_t key_length,
                                            quarn_json *value);
/** Appends to an array, which takes the value over; refusals as for quarn_json_addobjectitem(). */
QUARN_UTIL_API int quarn_json_addarrayitem(quarn_json *array, quarn_json *value);

/** A value of quarn_json_kind; 0 for null. */
QUARN_UTIL_API int quarn_json_gettype(const quarn_json *j);
/** The member's value, borrowed; null when there is none or object is not an object. */
QUARN_UTIL_API quarn_json *quarn_json_getobjectvalue(const quarn_json *object,
                                                     const char *key,
                                                     uint32_t key_length);
/** Number of members; 0 when it is not an object. */
QUARN_UTIL_API uint32_t quarn_json_getobjectsize(const quarn_json *object);
/** Member number index in insertion order, borrowed; key and key_length may be null. */
QUARN_UTIL_API quarn_json *quarn_json_getobjectitem(const quarn_json *object,
                                                    uint32_t index,
                                                    const char **key,
                                                    uint32_t *key_length);
/** Number of items; 0 when it is not an array. */
QUARN_UTIL_API uint32_t quarn_json_getarraysize(const quarn_json *array);
/** Item number index, borrowed, in constant time; null past the end. */
QUARN_UTIL_API quarn_json *quarn_json_getarrayitem(const quarn_json *array, uint32_t index);
/** The text of a string, NUL-terminated, borrowed; null when it is not a string. */
QUARN_UTIL_API const char *quarn_json_getstring(const quarn_json *j);
/** Octets of the text of a string, without the NUL; 0 when it is not a string. */
QUARN_UTIL_API uint32_t quarn_json_getstringlength(const quarn_json *j);
/** The number; 0 when it is not one. */
QUARN_UTIL_API double quarn_json_getnumber(const quarn_json *j);
/** 1 when it is the boolean true. */
QUARN_UTIL_API int quarn_json_istrue(const quarn_json *j);
/** Releases a value and all below it, without recursion. One that has a parent is left alone. */
QUARN_UTIL_API void quarn_json_free(quarn_json *j);

/** Parses JSON text (RFC 8259), UTF-8 only, of any depth. Duplicate keys, text after the value and
 * anything that is not JSON are refused; the record carries the octet offset. */
QUARN_UTIL_API quarn_json *quarn_json_parse(const char *text, size_t length, quarn_err_ctx *ctx);

/**
 * Prints a value as JSON text.
 *
 * @param indent  blanks for each level; 0 for one line without blanks. Indentation stops growing at
 *                64 levels, so that the text stays linear in the value.
 * @param text    receives NUL-terminated text, freed with quarn_free()
 * @param length  receives its length without the NUL; may be null
 */
QUARN_UTIL_API int quarn_json_print(const quarn_json *json,
                                    int indent,
                                    char **text,
                                    size_t *length);

/** As quarn_json_print(), into a stream, piece by piece. */
QUARN_UTIL_API int quarn_json_write(const quarn_json *json,
                                    int indent,
                                    quarn_stream *stream,
                                    quarn_err_ctx *ctx);

/* ---- Text encodings -------------------------------------------------------------------------- */

/** Hexadecimal text, two digits an octet; mode 1 upper case, 0 lower case. NUL-terminated. */
QUARN_UTIL_API int quarn_hexencode(
    int mode, const uint8_t *octets, int64_t count, char **text, int64_t *text_length);
/** Octets of hexadecimal text of either case; no separators, an even number of digits. */
QUARN_UTIL_API int quarn_hexdecode(const char *text,
                                   int64_t length,
                                   uint8_t **octets,
                                   int64_t *count);
/** Base64 text (RFC 4648), padded, NUL-terminated; line_length characters a line (0: one line). */
QUARN_UTIL_API int quarn_base64encode(
    int line_length, const uint8_t *octets, int64_t count, char **text, int64_t *text_length);

/**
 * Octets of base64 text.
 *
 * @param mode  2: blanks, tabs and line ends anywhere are skipped, missing padding is accepted;
 *              1: RFC 4648 to the letter
 * @param ctx   receives a record with the offset of the first character that is out of place
 */
QUARN_UTIL_API int quarn_base64decode(int mode,
                                      const char *text,
                                      int64_t length,
                                      uint8_t **octets,
                                      int64_t *count,
                                      quarn_err_ctx *ctx);

/** Octets of the first PEM block (RFC 7468, and what is found in real files) with this label. */
QUARN_UTIL_API int quarn_pemdecode(
    const char *label, const char *text, int64_t length, uint8_t **octets, int64_t *count);

/** One PEM block found by quarn_pemnext(). */
typedef struct quarn_pem_block {
  const char *label;    /**< into the text, not terminated */
  int64_t label_length; /**< octets of the label */
  int64_t begin;        /**< offset of the first '-' of the BEGIN line */
  int64_t end;          /**< offset after the END line */
  uint8_t *octets;      /**< content, freed with quarn_free() */
  int64_t count;        /**< octets of content */
} quarn_pem_block;

/**
 * Finds and decodes the next PEM block.
 *
 * @param offset  where to look from; receives where to go on, also after a broken block, so that
 * one bad block does not hide the rest
 * @return 1 for a block; 0 when a block is broken (one record with its offset); -1 when no more
 *         BEGIN line follows
 */
QUARN_UTIL_API int quarn_pemnext(
    const char *text, int64_t length, int64_t *offset, quarn_pem_block *block, quarn_err_ctx *ctx);

/** PEM text of the octets under a label, lines of 64 characters, NUL-terminated. */
QUARN_UTIL_API int quarn_pemencode(
    const char *label, const uint8_t *octets, int64_t count, char **text, int64_t *text_length);

#ifdef __cplusplus
}
#endif

#endif
