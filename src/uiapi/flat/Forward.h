#pragma once

#include "config/UIAPIGlobalVar.h"
#include "support/Compiler.h"
#include "support/Guard.h"
#include "support/Log.h"
#include "uiapi/UIAPICommonPara.h"

/// Building blocks of the flat functions. Each function gets its singleton, calls the method of the same name
/// and returns its result. An exception is caught and logged here.
namespace KVCAM::UIAPI::Flat {

template <class Body>
auto onCommonPara(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(
        Log::commonPara, [&] { return body(*UIAPICommonPara::instance()); }, line);
}

template <class Body>
auto onGlobalVar(Body && body, int line = UIAPI_CALLER_LINE)
{
    return guarded(
        Log::globalVar, [&] { return body(*UIAPIGlobalVar::instance()); }, line);
}

/// One field of a record copied out by a getter of UIAPICommonPara. The record starts with its defaults, so
/// an unknown view, which the getter logs, yields the field's default.
template <class Record, class Value>
Value readField(void const * view, void (UIAPICommonPara::*get)(void const *, Record &) const,
                Value Record::*field, int line = UIAPI_CALLER_LINE)
{
    return onCommonPara(
        [&](UIAPICommonPara & para) {
            Record record;
            (para.*get)(view, record);
            return record.*field;
        },
        line);
}

/// Reads a record, changes one field and writes the record back, which also pushes it to the engine. For an
/// unknown view the getter and then the setter log, and nothing is stored.
template <class Record, class Value>
void changeField(void const * view, void (UIAPICommonPara::*get)(void const *, Record &) const,
                 void (UIAPICommonPara::*set)(void const *, Record const &), Value Record::*field,
                 Value value, int line = UIAPI_CALLER_LINE)
{
    onCommonPara(
        [&](UIAPICommonPara & para) {
            Record record;
            (para.*get)(view, record);
            record.*field = value;
            (para.*set)(view, record);
        },
        line);
}

} // namespace KVCAM::UIAPI::Flat
