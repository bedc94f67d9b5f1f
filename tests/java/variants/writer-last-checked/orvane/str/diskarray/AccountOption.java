package orvane.str.diskarray;

/** Lacks additional_info, the last field whose failure drops the object. */
public class AccountOption {
    public AccountOptionInfo option_info;
    public AccountAdditionalInfo additional_info_absent;
}
