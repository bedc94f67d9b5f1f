package orvane.str.diskarray;

/** Lacks role_name, its last unchecked field. */
public class KXAccountRole {
    public String role_name_absent;
}
