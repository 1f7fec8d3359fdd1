# The headers that are installed, and nothing else of corvane/ is. A public header
# includes only public headers; the package test compiles each of them on its own.
set(CORVANE_PUBLIC_HEADERS
    Version.h
    scan/Assert.h
    scan/Export.h
    scan/Go.h
    scan/GoLines.h
    scan/Lines.h
    scan/Predicate.h
    scan/Unicode.h
    scan/Util.h
    tree/BlockRule.h
    tree/Common.h
    tree/InlineRule.h
    tree/LabeledConnections.h
    tree/Node.h
    tree/NodeArena.h
    tree/NodeType.h
    tree/NodeTypes.def
    tree/Range.h
    tree/ReplaceBatch.h
    tree/RuleBase.h
    tree/RuleConfig.h
    tree/RuleMap.h
    tree/SyncRanges.h
    tree/TextBuffer.h
    tree/Tree.h)
