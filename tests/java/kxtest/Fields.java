package kxtest;

/** An object with a String field for the field helpers to read. */
public class Fields {
    public String s;
}
