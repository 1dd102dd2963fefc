// Normalises words for the search, in the index and in the browser: without endings, and "time-out" also as "timeout".
globalThis.searchWords = {
    tokenize: text => [
        ...text.split(/[\s\p{P}\p{S}]+/u).filter(Boolean),
        ...(text.match(/\p{L}+-\p{L}+/gu) ?? []).map(word => word.replace('-', '')),
    ],
    processTerm: word => word.length > 4 ? word.toLowerCase().replace(/(ing|ed|es|s|e)$/, '') :
        word.toLowerCase().replace(/(?<=..)e$/, ''),
};
