// Placeholder: the document reader and writer land here.
