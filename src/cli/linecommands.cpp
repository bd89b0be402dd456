// Commands for the lines and the client of a document.
