package orvane.str.diskarray;

public class KXAccountRole {
    public String role_name;
}
