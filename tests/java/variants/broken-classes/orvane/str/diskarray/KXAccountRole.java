package orvane.str.diskarray;

/** Lacks role_name. */
public class KXAccountRole {
    public String name;
}
