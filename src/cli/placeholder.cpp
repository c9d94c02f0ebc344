// Placeholder: the command-line front end lands here.
