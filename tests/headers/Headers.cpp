// There to have the headers beside it compiled.
